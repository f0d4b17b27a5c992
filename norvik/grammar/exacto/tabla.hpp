// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/exacto/producciones.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/opcionesTabla.hpp"

namespace norvik::inline v0_2::exacto {

/// The table of an automaton of this method, empty without rules; columns of other symbols may precede those
/// of the grammar. Where precedence does not settle it a shift stays before a reduction, of two reductions
/// that of the earlier rule; what is kept out of a cell is kept as a conflict.
TablaLR creaTabla(const Producciones& producciones, const AutomataLR& automata, const OpcionesTabla& opciones,
                  SimbolosTabla otros = {});

} // namespace norvik::inline v0_2::exacto
