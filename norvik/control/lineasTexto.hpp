// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/fuenteTexto.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// A line (1-based) of a text whose lines end with CR LF, without its end; of an empty text the empty string.
/// Raises `ArgumentoNoValido` when there is no such line.
std::u16string_view dameLinea(std::int16_t n, std::u16string_view texto);

/// Where the characters of a line (0-based, one of the text's) end, its break left out.
std::int32_t finDeLinea(const FuenteTexto& texto, std::int32_t linea);
/// Those characters. Half a break, as undo may leave one, ends a line, too.
std::u16string_view textoDeLinea(const FuenteTexto& texto, std::int32_t linea);

/// The number of a line, which counts from 0, for hosts. Raises `Desbordamiento` beyond 32767, always in the
/// same words: it happens at each line there.
std::int16_t numeroDeLinea(std::int32_t linea);

/// `veces` × `ancho` spaces. Raises `Desbordamiento` for more than 32767, `ArgumentoNoValido` for fewer than
/// 0.
std::u16string espacios(std::int16_t veces, std::int16_t ancho);

} // namespace norvik::inline v0_2
