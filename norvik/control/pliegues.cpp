// SPDX-License-Identifier: MIT

#include "norvik/control/pliegues.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

std::vector<Construccion> construccionesDe(const ArbolAnalisis& arbol) {
    std::vector<Construccion> construcciones;
    std::int32_t linea = 0; // of the last one
    for (std::size_t i = 0; i < arbol.numNodos(); ++i) {
        const Nodo nodo = arbol[i];
        if (nodo.esToken() || nodo.numHijos() < 2 || !(*nodo.hijos().begin()).esToken()) continue;
        const Rango rango = nodo.rango();
        // Who is met first on a line holds the others.
        if (rango.inicio.linea == rango.fin.linea || rango.inicio.linea == linea) continue;
        linea = rango.inicio.linea;
        construcciones.push_back({static_cast<std::int32_t>(rango.inicio.desplazamiento),
                                  static_cast<std::int32_t>(rango.fin.desplazamiento)});
    }
    return construcciones;
}

void Pliegues::alCambiar(const CambioDeTexto& cambio) {
    for (Construccion& c : construcciones_) c = {cambio.lleva(c.inicio), cambio.lleva(c.fin)};
}

std::vector<Pliegue> Pliegues::en(const FuenteTexto& texto) const {
    std::vector<Pliegue> pliegues;
    for (const Construccion& c : construcciones_) {
        const Pliegue p{texto.lineaDeCaracter(c.inicio),
                        texto.lineaDeCaracter(std::max(c.fin - 1, c.inicio))};
        const bool nueva = pliegues.empty() || pliegues.back().primera != p.primera;
        if (nueva && p.ultima > p.primera) pliegues.push_back(p);
    }
    return pliegues;
}

} // namespace norvik::inline v0_2
