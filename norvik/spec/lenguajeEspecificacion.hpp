// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/spec/cargadorLenguaje.hpp"

namespace norvik::inline v0_2 {

class gramatica;
class pilaTokens;

/// Replaces what the grammar and the lexer hold by the language that specifications are written in, table
/// included. Its words are recognised in any case; `lenguajeSensible` reaches its comments alone.
void InstalaLenguajeEspecificacion(gramatica& g, pilaTokens& lexico, bool lenguajeSensible);

/// Adds the same language to a control through its loading interface and generates its table: words follow
/// the control's `LenguajeSensible`, "TTFecha" is one more kind, and signs go without display names.
NORVIK_API void CargaMetaLenguaje(CargadorLenguaje& control);

} // namespace norvik::inline v0_2
