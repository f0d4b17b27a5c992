#pragma once

#include "norvik/parser/arbol.hpp"

#include <string>

namespace norvik::orden {

/// A tree drawn for a person, one node a line. Of a deep node's indentation only the innermost levels are
/// drawn, after the number of those left out: else a list of thousands, which is a tree as deep, would take
/// the square of its length.
std::string dibuja(const Arbol& raiz);

} // namespace norvik::orden
