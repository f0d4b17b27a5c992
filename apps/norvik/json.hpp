#pragma once

#include "norvik/lexer/parLT.hpp"
#include "norvik/parser/arbol.hpp"

#include <cstdint>
#include <string>

namespace norvik::orden {

/// The whole tree in one line.
std::string jsonDeArbol(const Arbol& raiz);
/// One line a node, in pre-order.
std::string lineasDeArbol(const Arbol& raiz);
/// One line for a token read.
std::string jsonDeToken(const parLT& token, std::int32_t linea, std::int32_t columna);

} // namespace norvik::orden
