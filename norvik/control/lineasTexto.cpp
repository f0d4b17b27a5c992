// SPDX-License-Identifier: MIT

#include "norvik/control/lineasTexto.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <limits>

namespace norvik::inline v0_2 {

namespace {

[[noreturn]] void noHayLinea(std::int16_t n) {
    throw ArgumentoNoValido(u"Argumento o llamada a procedimiento no válidos: el texto no tiene la línea " +
                            aTexto(n));
}

} // namespace

std::u16string_view dameLinea(std::int16_t n, std::u16string_view texto) {
    if (texto.empty()) return {};
    if (n < 1) noHayLinea(n);
    std::size_t inicio = 0;
    std::size_t fin = std::min(texto.find(u'\r'), texto.size());
    for (std::int32_t i = 2; i <= n; ++i) {
        inicio = fin + saltoDeLinea.size();
        fin = std::min(texto.find(u'\r', inicio - 1), texto.size());
    }
    if (fin < inicio) noHayLinea(n);
    return texto.substr(inicio, fin - inicio);
}

std::int32_t finDeLinea(const FuenteTexto& texto, std::int32_t linea) {
    const std::int32_t siguiente = texto.inicioDeLinea(linea + 1);
    if (siguiente < 0) return static_cast<std::int32_t>(texto.texto().size());
    const auto hastaElSalto = texto.texto().substr(0, static_cast<std::size_t>(siguiente));
    return siguiente - (hastaElSalto.ends_with(saltoDeLinea) ? 2 : 1);
}

std::u16string_view textoDeLinea(const FuenteTexto& texto, std::int32_t linea) {
    const std::int32_t inicio = texto.inicioDeLinea(linea);
    return texto.texto().substr(static_cast<std::size_t>(inicio),
                                static_cast<std::size_t>(finDeLinea(texto, linea) - inicio));
}

std::int16_t numeroDeLinea(std::int32_t linea) {
    constexpr std::int16_t ultima = std::numeric_limits<std::int16_t>::max();
    if (linea >= ultima)
        throw Desbordamiento(u"Desbordamiento: el texto pasa de " + aTexto(ultima) + u" líneas");
    return a16(linea + 1);
}

std::u16string espacios(std::int16_t veces, std::int16_t ancho) {
    const std::int16_t cuantos = a16(std::int32_t{veces} * ancho, u"el número de espacios");
    if (cuantos < 0)
        throw ArgumentoNoValido(u"Argumento o llamada a procedimiento no válidos: el número de espacios es " +
                                aTexto(cuantos));
    std::u16string texto(static_cast<std::size_t>(cuantos), u' ');
    return texto;
}

} // namespace norvik::inline v0_2
