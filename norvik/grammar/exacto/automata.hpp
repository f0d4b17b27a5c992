// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/automataLR.hpp"
#include "norvik/grammar/exacto/producciones.hpp"
#include "norvik/grammar/precedencia.hpp"

namespace norvik::inline v0_2::exacto {

/// The canonical LR(0) automaton, empty without rules. State 1 is where the start symbol leads from state 0,
/// and no other state is it. Raises `Desbordamiento` at the thousandth state, `SubindiceFueraDeIntervalo` at
/// a state's item 1001.
AutomataLR creaAutomata(const Producciones& producciones);

/// An LR(1) automaton whose states are merged wherever that changes nothing of what is done before a token,
/// conflicts settled as the table settles them. Raises the same, `Desbordamiento` also when there are too
/// many conflicts or it takes longer than three seconds.
AutomataLR creaAutomataLr1(const Producciones& producciones, const Precedencias& precedencias);

} // namespace norvik::inline v0_2::exacto
