// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/arbol.hpp"

#include <cstdint>
#include <vector>

namespace norvik::orden {

/// A node of a tree on the way through it.
struct Paso {
    const Arbol& nodo;
    std::size_t nivel = 0;   ///< 0 for the root
    std::int32_t numero = 1; ///< in pre-order, from 1
    std::int32_t padre = 0;  ///< the parent's number, 0 for the root
    bool ultimo = true;      ///< the last child of its parent
};

/// A node made by a rule, even by one with an empty body; the others are tokens.
inline bool esInterior(const Arbol& nodo) {
    return nodo.GetNumRegla() > 0;
}

/// Walks a tree of any depth: `entra(paso)` on every node in pre-order, `sale(nodo)` after its last
/// descendant.
template <typename Entra, typename Sale>
void recorre(const Arbol& raiz, Entra entra, Sale sale) {
    struct Nivel {
        const Arbol* nodo;
        std::int32_t numero;
        std::int16_t vistos;
    };
    std::int32_t numero = 1;
    std::vector<Nivel> niveles{{&raiz, numero, 0}};
    entra(Paso{raiz});
    while (!niveles.empty()) {
        Nivel& nivel = niveles.back();
        const std::int16_t hijos = nivel.nodo->GetNumHijos();
        if (nivel.vistos == hijos) {
            sale(*nivel.nodo);
            niveles.pop_back();
            continue;
        }
        const Arbol* const hijo = nivel.nodo->GetHijo(++nivel.vistos);
        entra(Paso{*hijo, niveles.size(), ++numero, nivel.numero, nivel.vistos == hijos});
        niveles.push_back({hijo, numero, 0});
    }
}

} // namespace norvik::orden
