// SPDX-License-Identifier: MIT

// Lines are found by halving. Bytes are counted once for each stretch of characters, the rest of the way when
// they are asked for, so that a text of ASCII alone, or one given in UTF-16, costs nothing.
#include "norvik/base/lugares.hpp"

#include "norvik/base/lineas.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t tramo = 64;

bool esAscii(char16_t c) {
    return c < 0x80;
}

// A surrogate pair takes four bytes, which are counted at its first half.
std::int32_t bytesDe(char16_t c) {
    if (c < 0x80) return 1;
    if (c < 0x800) return 2;
    if (c >= 0xD800 && c < 0xDC00) return 4;
    return c >= 0xDC00 && c < 0xE000 ? 0 : 3;
}

std::int32_t bytesDe(std::u16string_view texto) {
    std::int32_t bytes = 0;
    for (const char16_t c : texto) bytes += bytesDe(c);
    return bytes;
}

} // namespace

Lugares::Lugares(std::u16string_view texto, Unidad unidad) : texto_(texto), lineas_(iniciosDeLineas(texto)) {
    if (unidad == Unidad::Utf16 || std::ranges::all_of(texto, esAscii)) return;
    std::int32_t bytes = 0;
    for (std::size_t i = 0; i <= texto.size(); i += tramo) {
        tramos_.push_back(bytes);
        bytes += bytesDe(texto.substr(i, tramo));
    }
}

std::int32_t Lugares::desplazamiento(std::size_t indice) const {
    if (tramos_.empty()) return static_cast<std::int32_t>(indice);
    const std::size_t principio = indice / tramo * tramo;
    return tramos_[indice / tramo] + bytesDe(texto_.substr(principio, indice - principio));
}

Punto Lugares::punto(std::size_t indice) const {
    const auto linea = std::ranges::upper_bound(lineas_, static_cast<std::int32_t>(indice)) - 1;
    const std::int32_t aqui = desplazamiento(indice);
    return {aqui, static_cast<std::int32_t>(linea - lineas_.begin()) + 1,
            aqui - desplazamiento(static_cast<std::size_t>(*linea)) + 1};
}

} // namespace norvik::inline v0_2
