// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/automataLR.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <vector>

namespace norvik::inline v0_2::exacto {

/// The tokens by which each finished item of each state reduces (state, then item; nothing for the others):
/// what can follow its rule in the texts that lead to that state.
std::vector<std::vector<Bits>> adelantos(const Producciones& producciones, const AutomataLR& automata);

} // namespace norvik::inline v0_2::exacto
