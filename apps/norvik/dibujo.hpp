// SPDX-License-Identifier: MIT

#pragma once

#include "salida.hpp"

#include "norvik/parser/arbol.hpp"

namespace norvik::orden {

/// Draws a tree for a person, one node a line. Of a deep node's indentation only the innermost levels are
/// drawn, after the number of those left out: else a list of thousands, which is a tree as deep, would take
/// the square of its length.
void dibuja(const Arbol& raiz, Salida& salida);

} // namespace norvik::orden
