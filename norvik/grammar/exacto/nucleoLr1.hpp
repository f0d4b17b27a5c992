// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/automataLR.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <map>
#include <vector>

namespace norvik::inline v0_2::exacto {

/// An item with its look-aheads.
struct ItemLr1 {
    Item item;
    Bits adelantos;
};

/// What an LR(1) state is known by: its items that are not at the beginning of their rules, in order.
using NucleoLr1 = std::vector<ItemLr1>;

/// The look-aheads of the rules that a kernel brings in, by variable: what follows it where it stands. The
/// sets may be larger than the grammar's symbols; all of a kernel are of one size.
std::map<Simbolo, Bits> adelantosDelCierre(const Producciones& producciones, const NucleoLr1& nucleo);

} // namespace norvik::inline v0_2::exacto
