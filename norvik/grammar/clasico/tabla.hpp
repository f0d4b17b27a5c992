// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/automataLR.hpp"
#include "norvik/grammar/conjuntos.hpp"
#include "norvik/grammar/tablaLR.hpp"

#include <stop_token>

namespace norvik::inline v0_2::clasico {

/// The table of an automaton, empty when there is no start symbol; columns of other symbols may precede those
/// of the grammar. Raises `SubindiceFueraDeIntervalo` for a Ø beside other symbols, which has no column,
/// `OperacionCancelada` once that is asked for.
TablaLR creaTabla(const ReglasPartidas& reglas, const Conjuntos& conjuntos, const AutomataLR& automata,
                  SimbolosTabla otros = {}, const std::stop_token& parada = {});

} // namespace norvik::inline v0_2::clasico
