// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The name that was most likely meant by one that nobody knows: the first of those that differ from it by
/// the fewest insertions, deletions, replacements and exchanges of neighbours, case apart. Empty when all
/// differ by more than a third of the name's length, or by more than 3.
std::u16string nombreCercano(std::u16string_view nombre, const std::vector<std::u16string>& conocidos);

} // namespace norvik::inline v0_2
