// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/celdaSLR.hpp"
#include "norvik/grammar/tablaLR.hpp"

#include <vector>

namespace norvik::inline v0_2 {

/// The entries that reading a table makes up, which modules write all the same; in column order.
std::vector<CeldaSLR> celdasFijas(const TablaLR& tabla);

} // namespace norvik::inline v0_2
