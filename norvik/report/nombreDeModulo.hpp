// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <string_view>

namespace norvik::inline v0_2 {

/// The languages that modules are written in.
enum class LenguajeModulo : std::uint8_t { Vb, Cpp };

/// True when a module of that kind can have the name: an identifier (letters of any alphabet, digits and
/// underscores, not starting with a digit) that is no reserved word of the language.
bool esNombreDeModulo(std::u16string_view nombre, LenguajeModulo lenguaje);
/// Raises `ArgumentoNoValido` when it cannot.
NORVIK_API void compruebaNombreDeModulo(std::u16string_view nombre, LenguajeModulo lenguaje);

} // namespace norvik::inline v0_2
