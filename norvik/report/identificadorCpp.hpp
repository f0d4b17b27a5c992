// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// A word or a macro: no name of a C++ program can be it.
bool esReservadoEnCpp(std::u16string_view nombre);

/// A name spelt in C++, in ASCII: other characters as universal character names.
std::u16string nombreUniversal(std::u16string_view nombre);

/// The enumerator for a symbol's name, whatever its characters. Different names have different ones.
std::u16string identificadorCpp(std::u16string_view nombre);

/// The enumerator for a rule: one among those of its head, counted from 1. Different rules have different
/// ones.
std::u16string identificadorCpp(std::u16string_view cabeza, int ordinal);

/// A character by its number, in four digits.
std::u16string enHexadecimal(char16_t c);

} // namespace norvik::inline v0_2
