// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace norvik::orden {

/// A graph in Graphviz's language as SVG that can stand in a page, in the colour of the text around it.
/// Nothing without Graphviz, or when it takes longer than ten seconds.
std::optional<std::string> dibujaGrafo(std::string_view grafo);

} // namespace norvik::orden
