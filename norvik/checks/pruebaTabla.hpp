// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/arbolEjemplo.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <optional>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// The tree that a table gives a sentence of tokens, as a parse does it; nothing when it refuses it, or does
/// not come to an end.
std::optional<ArbolEjemplo> arbolPorTabla(const TablaLR& tabla, const Reglas& reglas,
                                          const std::vector<std::u16string>& frase);

} // namespace norvik::inline v0_2
