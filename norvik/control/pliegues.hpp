// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/parser/arbolAnalisis.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// What can be folded: the lines behind the first one of a construction. Lines are 0-based.
struct Pliegue {
    std::int32_t primera = 0; ///< stays in view
    std::int32_t ultima = 0;

    bool operator==(const Pliegue&) const = default;
};

/// A construction of several lines: its first character and the one behind its last, 0-based.
struct Construccion {
    std::int32_t inicio = 0;
    std::int32_t fin = 0;

    bool operator==(const Construccion&) const = default;
};

/// Those of a tree that a person folds: what begins with a token of its own (a list begins with its first
/// element, and folds as that). Of those that begin on one line the longest, in their order.
NORVIK_API std::vector<Construccion> construccionesDe(const ArbolAnalisis& arbol);

/// The constructions of a text by its last good tree, moved with the edits.
class NORVIK_API Pliegues {
public:
    /// Those of the text as it is now.
    void toma(std::vector<Construccion> construcciones) { construcciones_ = std::move(construcciones); }
    void alCambiar(const CambioDeTexto& cambio);
    /// In the order of their first lines, of which each has one at most.
    std::vector<Pliegue> en(const FuenteTexto& texto) const;

private:
    std::vector<Construccion> construcciones_;
};

} // namespace norvik::inline v0_2
