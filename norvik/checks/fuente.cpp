// SPDX-License-Identifier: MIT

#include "norvik/checks/fuente.hpp"

#include "norvik/spec/nodoEspecificacion.hpp"
#include "norvik/spec/recorridoEspecificacion.hpp"

namespace norvik {

namespace {

Fuente::Simbolo simboloDe(const NodoEspecificacion& hoja) {
    return {std::u16string(hoja.lexema()), hoja.rango()};
}

void anota(Fuente& fuente, const NodoEspecificacion& cabeza, const NodoEspecificacion& alternativas) {
    especificacion::cuerpoDe(
        alternativas,
        [&](const NodoEspecificacion& simbolo) { fuente.reglas.back().cuerpo.push_back(simboloDe(simbolo)); },
        [&](const NodoEspecificacion& alternativa) {
            fuente.reglas.push_back({simboloDe(cabeza), {}, alternativa.rango()});
        });
}

} // namespace

Fuente fuenteDe(const Analisis& especificacion) {
    Fuente fuente;
    especificacion::recorre(
        NodoEspecificacion(especificacion.arbol.raiz()),
        [&](const especificacion::Definicion<NodoEspecificacion>& d) {
            fuente.definiciones.push_back({std::u16string(d.nombre.lexema()), d.nombre.rango(),
                                           std::u16string(d.patron.lexema()), d.patron.rango(), d.esToken,
                                           d.perfil.tipo});
        },
        [&](const NodoEspecificacion& cabeza, const NodoEspecificacion& alternativas) {
            anota(fuente, cabeza, alternativas);
        });
    return fuente;
}

} // namespace norvik
