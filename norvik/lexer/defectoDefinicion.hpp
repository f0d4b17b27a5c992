// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/pattern/patron.hpp"

#include <optional>
#include <string_view>

namespace norvik::inline v0_2 {

class DefinicionesTokens;

/// What keeps a definition text, with the definitions before it, from being a pattern; the place is one in
/// the text, a reference for what is wrong where it joins the rest. Nothing for a sound one, and for a
/// reference that nothing bears.
std::optional<DefectoPatron> defectoDeDefinicion(std::u16string_view texto,
                                                 const DefinicionesTokens& definiciones);

} // namespace norvik::inline v0_2
