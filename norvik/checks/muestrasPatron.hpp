// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// Different texts that a well-formed pattern takes as a whole, at most so many, the same ones each time.
/// None of a pattern that needs more text around it, or whose texts are not found by trying; fewer
/// when the budget is spent.
std::vector<std::u16string> muestrasDe(std::u16string_view patron, bool ignoraMayusculas, std::size_t cuantas,
                                       const Presupuesto& presupuesto);
/// Whether a person reads the one more easily: plain characters first, few of them.
bool esMasLegible(std::u16string_view uno, std::u16string_view otro);

} // namespace norvik::inline v0_2
