// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/derivacionesMinimas.hpp"
#include "norvik/checks/grafoAutomata.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace norvik::inline v0_2 {

/// Where an example begins: a state, and for each of two parsers an item of it whose head a token has to
/// follow, or none when anything may.
struct ComienzoContexto {
    std::int16_t estado = 0;
    std::array<std::optional<Item>, 2> hilos;
};

/// A step outwards: the rule that has what is within, and how its rest goes on.
struct Eslabon {
    enum class Resto : std::uint8_t { Libre, Vacio, EmpiezaPorToken };

    Item item;
    Resto resto = Resto::Libre;
};

/// The texts around a place of an automaton in which a certain token comes next.
class ContextoConflicto {
public:
    ContextoConflicto(const GrafoAutomata& grafo, const exacto::Producciones& producciones,
                      DerivacionesMinimas& minimas, Simbolo token)
        : grafo_(grafo), producciones_(producciones), minimas_(minimas), token_(token) {}

    /// The states of a shortest way from state 0 to the first of these places of which the parsers can all be
    /// right; none when there is none.
    std::vector<std::int16_t> camino(const std::vector<ComienzoContexto>& comienzos) const;
    /// The rules around an item at the end of a way, from within to the start symbol. When the token is to
    /// follow its head, one of them has it, or it is the end of the text. Nothing when no text goes on so.
    std::optional<std::vector<Eslabon>> cadena(const std::vector<std::int16_t>& camino, Item item,
                                               bool pideToken) const;
    /// Grows the tree around a node, the root being new.
    void monta(ArbolEjemplo& arbol, std::int32_t nodo, const std::vector<Eslabon>& cadena) const;

private:
    bool esFinal(std::int16_t estado, Simbolo cabeza) const;

    const GrafoAutomata& grafo_;
    const exacto::Producciones& producciones_;
    DerivacionesMinimas& minimas_;
    Simbolo token_;
};

} // namespace norvik::inline v0_2
