// SPDX-License-Identifier: MIT

#include "norvik/spec/directivas.hpp"

#include <algorithm>
#include <string>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

// Nothing for a line of another form.
std::optional<LineaDirectiva> directivaEn(std::u16string_view linea) {
    constexpr std::u16string_view separador = u": ";
    if (!linea.starts_with(marcaDeDirectiva)) return std::nullopt;
    linea.remove_prefix(marcaDeDirectiva.size());
    const std::size_t fin = linea.find(separador);
    if (fin == std::u16string_view::npos || linea.substr(0, fin).find_first_of(u" \t") < fin)
        return std::nullopt;
    return LineaDirectiva{linea.substr(0, fin), linea.substr(fin + separador.size())};
}

std::optional<std::int32_t> numeroDe(std::u16string_view cifras) {
    constexpr std::size_t maximoDeCifras = 6;
    if (cifras.empty() || cifras.size() > maximoDeCifras) return std::nullopt;
    std::int32_t numero = 0;
    for (const char16_t c : cifras) {
        if (c < u'0' || c > u'9') return std::nullopt;
        numero = numero * 10 + (c - u'0');
    }
    return numero;
}

NivelPrecedencia nivelDe(const LineaDirectiva& linea) {
    NivelPrecedencia nivel{*asociatividadDe(linea.palabra), {}};
    for (const std::u16string_view token : nombresDe(linea.valor)) nivel.tokens.emplace_back(token);
    return nivel;
}

} // namespace

std::u16string_view cabecera(std::u16string_view especificacion) {
    std::size_t inicio = 0;
    while (inicio < especificacion.size()) {
        const std::size_t primero = especificacion.find_first_not_of(u" \t", inicio);
        if (primero == std::u16string_view::npos) break;
        const char16_t c = especificacion[primero];
        if (c != u'\'' && c != u'\r' && c != u'\n') return especificacion.substr(0, inicio);
        inicio = std::min(especificacion.find_first_of(u"\r\n", primero), especificacion.size() - 1) + 1;
    }
    return especificacion;
}

std::vector<LineaDirectiva> lineasDeDirectivas(std::u16string_view texto) {
    std::vector<LineaDirectiva> lineas;
    for (std::size_t inicio = 0; inicio < texto.size();) {
        const std::size_t fin = std::min(texto.find_first_of(u"\r\n", inicio), texto.size());
        if (auto directiva = directivaEn(texto.substr(inicio, fin - inicio))) {
            directiva->inicio = inicio;
            directiva->fin = fin;
            lineas.push_back(*directiva);
        }
        inicio = fin + 1;
    }
    return lineas;
}

std::u16string conMetodo(std::u16string_view especificacion, Metodo metodo) {
    constexpr std::u16string_view palabra = u"metodo";
    const auto nombre = std::ranges::find(metodos, metodo, [](const auto& par) { return par.second; })->first;
    const std::u16string linea =
        std::u16string(marcaDeDirectiva).append(palabra).append(u": ").append(nombre);
    std::u16string otra(especificacion);
    bool dicho = false;
    for (const LineaDirectiva& suya : lineasDeDirectivas(cabecera(especificacion))) {
        if (suya.palabra != palabra) continue;
        otra.replace(suya.inicio + (otra.size() - especificacion.size()), suya.fin - suya.inicio, linea);
        dicho = true;
    }
    if (dicho) return otra;
    const bool soloLf = otra.find(u'\n') != std::u16string::npos && otra.find(u'\r') == std::u16string::npos;
    return linea + (soloLf ? u"\n" : u"\r\n") + otra;
}

std::optional<Asociatividad> asociatividadDe(std::u16string_view palabra) {
    if (palabra == u"izquierda") return Asociatividad::Izquierda;
    if (palabra == u"derecha") return Asociatividad::Derecha;
    if (palabra == u"sinasociar") return Asociatividad::Ninguna;
    return std::nullopt;
}

std::vector<std::u16string_view> nombresDe(std::u16string_view valor) {
    constexpr std::u16string_view blancos = u" \t";
    std::vector<std::u16string_view> nombres;
    for (std::size_t desde = valor.find_first_not_of(blancos); desde < valor.size();) {
        const std::size_t fin = std::min(valor.find_first_of(blancos, desde), valor.size());
        nombres.push_back(valor.substr(desde, fin - desde));
        desde = valor.find_first_not_of(blancos, fin);
    }
    return nombres;
}

bool vale(const LineaDirectiva& linea) {
    if (linea.palabra == u"metodo") return metodoLlamado(linea.valor).has_value();
    if (linea.palabra == u"mayusculas") return linea.valor == valorDeMayusculas;
    if (linea.palabra == u"conflictos") return numeroDe(linea.valor).has_value();
    return asociatividadDe(linea.palabra) && !nombresDe(linea.valor).empty();
}

Directivas leeDirectivas(std::u16string_view especificacion, Lugares::Unidad unidad) {
    Directivas directivas;
    std::optional<LineaDirectiva> conflictos; // the last line that says how many
    for (const LineaDirectiva& linea : lineasDeDirectivas(cabecera(especificacion))) {
        if (!vale(linea)) continue;
        if (linea.palabra == u"metodo")
            directivas.tabla.metodo = *metodoLlamado(linea.valor);
        else if (linea.palabra == u"mayusculas")
            directivas.distingueMayusculas = true;
        else if (linea.palabra == u"conflictos")
            conflictos = linea;
        else
            directivas.tabla.precedencias.push_back(nivelDe(linea));
    }
    if (conflictos)
        directivas.conflictos = {*numeroDe(conflictos->valor),
                                 Lugares(especificacion, unidad).rango(conflictos->inicio, conflictos->fin)};
    return directivas;
}

} // namespace norvik::inline v0_2
