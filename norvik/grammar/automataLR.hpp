// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/estadoAutomata.hpp"

#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// An LR automaton: the state at a place has that number. State 0 begins, state 1 is where the start symbol
/// leads.
struct AutomataLR {
    std::vector<estadoAutomata> estados;
};

/// «0: 1.0>2 2.0>-1», a line for each state: rule, dot and target of its items.
std::u16string enTexto(const AutomataLR& automata);

} // namespace norvik::inline v0_2
