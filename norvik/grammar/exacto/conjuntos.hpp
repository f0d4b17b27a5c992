// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/conjuntos.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <vector>

namespace norvik::inline v0_2::exacto {

/// What can follow each head in a text of the grammar, by symbol.
std::vector<Bits> siguientes(const Producciones& producciones);

/// FIRST, FOLLOW and PREDICT, one of each head, whose members are in order of first occurrence, Ø and "$"
/// first.
Conjuntos creaConjuntos(const Producciones& producciones);

} // namespace norvik::inline v0_2::exacto
