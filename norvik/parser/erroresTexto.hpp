// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/base/lugares.hpp"
#include "norvik/parser/lectura.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

class FichasTokens;
class LenguajeAnalisis;
class pilaTokens;

/// As many errors of one text are told: nobody reads on, and each takes memory.
inline constexpr std::size_t maximoErrores = 10'000;

/// What is said of the tokens of a language.
struct VocesDeLenguaje {
    const pilaTokens& lexico;
    const FichasTokens& fichas;
};

/// What is wrong with the character at a 0-based index, which starts no token.
Diagnostico caracterIncorrecto(std::u16string_view texto, std::size_t indice, const Lugares& lugares);

/// What is wrong with the characters from a 0-based index up to the one before `fin`, which start no token.
Diagnostico caracteresIncorrectos(std::u16string_view texto, std::size_t inicio, std::size_t fin,
                                  const Lugares& lugares);

/// The tokens that the table can really shift on a stack after its reductions, the end of the text among
/// them: exactly those, each by what a person calls it and each name once. The stack's states count from the
/// bottom.
std::vector<std::u16string> esperadosEn(std::span<const std::int16_t> pila, const FichasTokens& fichas,
                                        const LenguajeAnalisis& lenguaje);

/// What is wrong with a token that the parse could not go on with.
Diagnostico tokenInesperado(const Lectura& lectura, std::vector<std::u16string> esperados,
                            const Lugares& lugares, const pilaTokens& lexico);

} // namespace norvik::inline v0_2
