// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/continuaciones.hpp"

#include <cstddef>
#include <string_view>

namespace norvik::inline v0_2 {

/// What can follow at a position (from 0, in UTF-16 units) of a specification: what its language says, with
/// only those names that can be meant; in a pattern, behind a «<», the definitions before it; in a
/// directive, its words. Raises `Desbordamiento` with a text of 2^31 - 1 units or more.
Continuaciones continuacionesDeEspecificacion(std::u16string_view especificacion, std::size_t posicion);

} // namespace norvik::inline v0_2
