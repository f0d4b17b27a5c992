// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/automataLR.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

// What both automata are built of. A kernel may have the item of the rule that no grammar has, 0: start
// symbol, end of text; it is dropped in the finished states.
namespace norvik::inline v0_2::exacto {

/// A kernel with its items in order, and where its transitions lead, in order of appearance.
struct EstadoLR {
    std::vector<Item> nucleo;
    std::vector<std::pair<Simbolo, std::size_t>> destinos;
};

/// The kernels' symbol order: items by rule, then dot.
bool vaDelante(const Item& uno, const Item& otro);
/// The symbol after the dot, `sinSimbolo` at the end.
Simbolo simboloTras(const Producciones& producciones, Item item);
/// The rules that a kernel brings in, all of a variable one after another.
std::vector<std::int16_t> cierre(const Producciones& producciones, const std::vector<Item>& nucleo);
/// The finished automaton: those reached from the first state, numbered as they are met, the start symbol's
/// target first. Raises `Desbordamiento` at the thousandth state.
AutomataLR acaba(const Producciones& producciones, const std::vector<EstadoLR>& estados);

} // namespace norvik::inline v0_2::exacto
