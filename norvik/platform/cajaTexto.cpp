// SPDX-License-Identifier: MIT

#include "norvik/platform/cajaTexto.hpp"

#include "norvik/pattern/mayusculas.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

bool esPalabraCompleta(std::u16string_view texto, std::size_t inicio, std::size_t longitud) {
    const std::size_t fin = inicio + longitud;
    return (inicio == 0 || !esDePalabra(texto[inicio - 1])) &&
           (fin == texto.size() || !esDePalabra(texto[fin]));
}

std::u16string plegado(std::u16string_view texto) {
    std::u16string forma(texto);
    std::ranges::transform(texto, forma.begin(), pliega);
    return forma;
}

/// First occurrence in the text's [desde, hasta), `npos` when there is none.
std::size_t primera(std::u16string_view texto, std::u16string_view cadena, std::size_t desde,
                    std::size_t hasta, bool palabraCompleta) {
    const std::u16string_view tramo = texto.substr(0, hasta);
    for (auto p = tramo.find(cadena, desde); p != tramo.npos; p = tramo.find(cadena, p + 1)) {
        if (!palabraCompleta || esPalabraCompleta(texto, p, cadena.size())) return p;
    }
    return tramo.npos;
}

} // namespace

std::int32_t CajaTexto::busca(std::u16string_view cadena, std::int32_t desde, std::int32_t hasta,
                              std::int32_t opciones) {
    const auto total = static_cast<std::int32_t>(texto().size());
    const auto inicio = static_cast<std::size_t>(std::clamp(desde, 0, total));
    const auto fin = static_cast<std::size_t>(std::clamp(hasta, 0, total));
    if (cadena.empty() || fin < inicio) return -1;
    const bool palabra = (opciones & opcionBusqueda::palabraCompleta) != 0;
    const bool exacta = (opciones & opcionBusqueda::distingueMayusculas) != 0;
    const std::size_t posicion = exacta ? primera(texto(), cadena, inicio, fin, palabra)
                                        : primera(plegado(texto()), plegado(cadena), inicio, fin, palabra);
    if (posicion == std::u16string_view::npos) return -1;
    const auto encontrada = static_cast<std::int32_t>(posicion);
    if ((opciones & opcionBusqueda::sinResaltar) == 0) {
        selecciona(encontrada, static_cast<std::int32_t>(cadena.size()));
    }
    return encontrada;
}

} // namespace norvik::inline v0_2
