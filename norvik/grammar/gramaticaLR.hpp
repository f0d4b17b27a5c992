// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/automataLR.hpp"
#include "norvik/grammar/conjuntos.hpp"
#include "norvik/grammar/reglas.hpp"
#include "norvik/grammar/reglasPartidas.hpp"
#include "norvik/grammar/tablaLR.hpp"

namespace norvik::inline v0_2 {

/// The grammar of a language and all that is derived from it, each part from those before it: `partidas` is
/// made from the rules, sets, automaton and table by a method. A language that was loaded has rules and table
/// only.
struct GramaticaLR {
    Reglas reglas;
    ReglasPartidas partidas;
    Conjuntos conjuntos;
    AutomataLR automata;
    TablaLR tabla;
};

} // namespace norvik::inline v0_2
