// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/derivacionesMinimas.hpp"
#include "norvik/grammar/automataLR.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// An exact automaton as a graph to be walked both ways. Symbols from which no text comes lead nowhere, since
/// no example can have them. Rules and automaton outlive it.
class GrafoAutomata {
public:
    static constexpr std::int16_t ninguno = -1;

    GrafoAutomata(const exacto::Producciones& producciones, const AutomataLR& automata,
                  const DerivacionesMinimas& minimas);

    std::size_t estados() const { return automata_.estados.size(); }
    const std::vector<Item>& items(std::int16_t estado) const {
        return automata_.estados[static_cast<std::size_t>(estado)].items();
    }
    /// The symbol after an item's dot, `sinSimbolo` at the end.
    Simbolo simboloTras(Item item) const;
    /// The symbols after that one.
    Cuerpo resto(Item item) const;
    /// Where a symbol leads, or `ninguno`.
    std::int16_t destino(std::int16_t estado, Simbolo simbolo) const {
        return destinos_[static_cast<std::size_t>(estado) * simbolos_ + static_cast<std::size_t>(simbolo)];
    }
    /// Transitions of a state.
    const std::vector<std::pair<Simbolo, std::int16_t>>& salidas(std::int16_t estado) const {
        return salidas_[static_cast<std::size_t>(estado)];
    }
    /// The rules that a state has read to the end.
    const std::vector<std::int16_t>& acabadas(std::int16_t estado) const {
        return acabadas_[static_cast<std::size_t>(estado)];
    }
    const std::vector<std::int16_t>& predecesores(std::int16_t estado) const {
        return predecesores_[static_cast<std::size_t>(estado)];
    }
    /// The symbol that leads to a state; `sinSimbolo` for state 0.
    Simbolo acceso(std::int16_t estado) const { return accesos_[static_cast<std::size_t>(estado)]; }
    /// The states of a shortest way from state 0, both ends included; none when there is no way.
    std::vector<std::int16_t> caminoHasta(std::int16_t estado) const;

private:
    void enlaza(std::int16_t estado);
    void buscaCaminos();

    const exacto::Producciones& producciones_;
    const AutomataLR& automata_;
    const DerivacionesMinimas& minimas_;
    std::size_t simbolos_;
    std::vector<std::int16_t> destinos_;
    std::vector<std::vector<std::pair<Simbolo, std::int16_t>>> salidas_;
    std::vector<std::vector<std::int16_t>> acabadas_;
    std::vector<std::vector<std::int16_t>> predecesores_;
    std::vector<Simbolo> accesos_;
    std::vector<std::int16_t> anteriores_; // on the shortest way
};

} // namespace norvik::inline v0_2
