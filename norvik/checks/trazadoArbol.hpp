// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace norvik::inline v0_2 {

/// A node of a tree to be drawn.
struct NodoPorTrazar {
    int ancho = 0;         ///< of what stands there, in whatever unit
    std::size_t hijos = 0; ///< how many it has
};

/// Where the nodes of a tree stand, in the order in which they were given.
struct TrazadoArbol {
    static constexpr std::size_t sinPadre = static_cast<std::size_t>(-1);

    struct Sitio {
        int centro = 0;
        std::size_t nivel = 0; ///< the root's is 0
        std::size_t padre = sinPadre;
    };
    std::vector<Sitio> sitios;
    int ancho = 0;
    std::size_t niveles = 0;
};

/// Lays a tree out that is given as its nodes, children before their parent, each subtree whole. Around each
/// node there is a margin. Time and memory grow with the nodes.
TrazadoArbol trazaArbol(std::span<const NodoPorTrazar> enPostorden, int margen);

} // namespace norvik::inline v0_2
