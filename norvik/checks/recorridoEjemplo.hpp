// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/arbolEjemplo.hpp"

#include <cstddef>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// Goes through a tree in order: `entra` with each node and its level (the root's is 0) before its children,
/// `sale` with it after them.
template <typename Entra, typename Sale>
void recorre(const ArbolEjemplo& arbol, const Entra& entra, const Sale& sale) {
    if (arbol.nodos.empty()) return;
    std::vector<std::pair<std::size_t, std::size_t>> abiertos{
        {arbol.nodos.size() - 1, 0}}; // node, next child
    entra(arbol.nodos.back(), std::size_t{0});
    while (!abiertos.empty()) {
        auto& [cual, siguiente] = abiertos.back();
        const NodoEjemplo& nodo = arbol.nodos[cual];
        if (siguiente == nodo.hijos.size()) {
            sale(nodo);
            abiertos.pop_back();
            continue;
        }
        const auto hijo = static_cast<std::size_t>(nodo.hijos[siguiente++]);
        entra(arbol.nodos[hijo], abiertos.size());
        abiertos.emplace_back(hijo, 0);
    }
}

} // namespace norvik::inline v0_2
