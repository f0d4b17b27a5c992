// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string_view>

// Letter case by Unicode's pairs, unit by unit, the way the matcher ignores it.
namespace norvik::inline v0_2 {

/// Of each unit, the first of those that differ from it in case alone (itself when there is none).
extern const std::array<char16_t, 65536> pliegues;

/// Two units agree without regard to case exactly when their folds are equal.
inline char16_t pliega(char16_t unidad) {
    return pliegues[unidad];
}

/// Every unit that agrees with this one, itself included, in order; empty when it is alone.
std::u16string_view equivalentes(char16_t unidad);

/// The units that are not alone, in order.
std::u16string_view unidadesConPareja();

} // namespace norvik::inline v0_2
