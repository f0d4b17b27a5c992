// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/arbol.hpp"

#include <functional>
#include <string_view>

namespace norvik::orden {

/// Draws a tree for a person, one node a line. Of a deep node's indentation only the innermost levels are
/// drawn, after the number of those left out: else a list of thousands, which is a tree as deep, would take
/// the square of its length. `escribe` takes the lines in UTF-8.
void dibuja(const Arbol& raiz, const std::function<void(std::string_view)>& escribe);

} // namespace norvik::orden
