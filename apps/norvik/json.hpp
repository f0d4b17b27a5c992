// SPDX-License-Identifier: MIT

#pragma once

#include "salida.hpp"

#include "norvik/base/diagnostico.hpp"
#include "norvik/checks/revision.hpp"

#include "norvik/lexer/parLT.hpp"
#include "norvik/parser/arbol.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvik::orden {

/// The whole tree in one line.
void escribeJson(const Arbol& raiz, Salida& salida);
/// One line a node, in pre-order.
void escribeLineas(const Arbol& raiz, Salida& salida);
/// One line for a token read.
void escribeJson(const parLT& token, std::int32_t linea, std::int32_t columna, Salida& salida);

/// One line: {"diagnosticos":[…]}, all of one file.
void escribeJson(const std::vector<Diagnostico>& diagnosticos, std::u16string_view fichero, Salida& salida);
/// One line for one.
void escribeJson(const Hallazgo& hallazgo, std::u16string_view fichero, Salida& salida);

} // namespace norvik::orden
