// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/spec/lenguaje.hpp"

namespace norvik::inline v0_2 {

class gramatica;
class pilaTokens;

/// What a lexer and a grammar are now, as a language that does not change with them. One whose table cannot
/// be used has tokens only.
Lenguaje lenguajeDe(const pilaTokens& lexico, const gramatica& reglas);

} // namespace norvik::inline v0_2
