// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/base/lugares.hpp"
#include "norvik/parser/lectura.hpp"

#include <cstddef>
#include <string_view>

namespace norvik {

class LenguajeAnalisis;
class MapaTokens;
class gramatica;
class pilaTokens;

/// A text that was recognised and parsed, and the language that did it.
struct TextoReconocido {
    std::u16string_view texto;
    const MapaTokens& mapa;
    const pilaTokens& lexico;
    const gramatica& reglas;
};

/// 2 for a character outside the first plane, which is a pair of units; else 1.
std::size_t largoDeCaracter(std::u16string_view texto, std::size_t indice);

/// What is wrong with the character at a 0-based index, which starts no token.
Diagnostico caracterIncorrecto(std::u16string_view texto, std::size_t indice, const Lugares& lugares);

/// What is wrong with a token that the parse could not go on with. What is expected is exact: the tokens that
/// the table can really shift there after its reductions, the end of the text among them.
Diagnostico tokenInesperado(const TextoReconocido& reconocido, const Lectura& lectura, const Lugares& lugares,
                            LenguajeAnalisis& lenguaje);

} // namespace norvik
