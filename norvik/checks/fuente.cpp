// SPDX-License-Identifier: MIT

#include "norvik/checks/fuente.hpp"

#include "norvik/base/lugares.hpp"
#include "norvik/spec/nodoEspecificacion.hpp"
#include "norvik/spec/recorridoEspecificacion.hpp"

namespace norvik::inline v0_2 {

namespace {

FuenteEspecificacion::Simbolo simboloDe(const NodoEspecificacion& hoja) {
    return {std::u16string(hoja.lexema()), hoja.rango()};
}

void anotaReglas(FuenteEspecificacion& fuente, const NodoEspecificacion& cabeza,
                 const NodoEspecificacion& alternativas) {
    especificacion::cuerpoDe(
        alternativas,
        [&](const NodoEspecificacion& simbolo) { fuente.reglas.back().cuerpo.push_back(simboloDe(simbolo)); },
        [&](const NodoEspecificacion& alternativa) {
            fuente.reglas.push_back({simboloDe(cabeza), {}, alternativa.rango()});
        });
}

} // namespace

Rango FuenteEspecificacion::Definicion::lugarDe(std::size_t desde, std::size_t largo) const {
    const Rango dentro = Lugares(texto, Lugares::Unidad::Utf16).rango(desde, desde + largo);
    const auto enEspecificacion = [this](Punto punto) {
        constexpr std::int32_t comilla = 1;
        const Punto& inicio = lugarTexto.inicio;
        punto.desplazamiento += inicio.desplazamiento + comilla;
        if (punto.linea == 1) punto.columna += inicio.columna - 1 + comilla;
        punto.linea += inicio.linea - 1;
        return punto;
    };
    return {enEspecificacion(dentro.inicio), enEspecificacion(dentro.fin)};
}

FuenteEspecificacion fuenteDe(const Analisis& especificacion) {
    FuenteEspecificacion fuente;
    especificacion::recorre(
        NodoEspecificacion(especificacion.arbol.raiz()),
        [&](const especificacion::Definicion<NodoEspecificacion>& d) {
            fuente.definiciones.push_back({std::u16string(d.nombre.lexema()), d.nombre.rango(),
                                           std::u16string(d.patron.lexema()), d.patron.rango(), d.esToken,
                                           d.perfil.tipo, std::u16string(d.pseudoToken)});
        },
        [&](const NodoEspecificacion& cabeza, const NodoEspecificacion& alternativas) {
            anotaReglas(fuente, cabeza, alternativas);
        });
    return fuente;
}

} // namespace norvik::inline v0_2
