// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/tablaLR.hpp"

namespace norvik::inline v0_2 {

/// Whether two tables of the same rules are the same but for how their states are numbered and their columns
/// ordered: then they do the same with every text. False as well where two states of one table are a single
/// one of the other.
bool esLaMismaTabla(const TablaLR& una, const TablaLR& otra);

} // namespace norvik::inline v0_2
