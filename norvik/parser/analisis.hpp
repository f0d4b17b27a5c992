#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/parser/arbolAnalisis.hpp"

#include <stop_token>
#include <vector>

namespace norvik {

struct OpcionesAnalisis {
    std::stop_token cancelacion; ///< ends the operation soon, with the diagnostic `cancelado`
};

/// What a parse gives: the tree of an accepted text, else an empty one and what is wrong.
struct Analisis {
    ArbolAnalisis arbol;
    std::vector<Diagnostico> diagnosticos;

    /// The text was accepted.
    explicit operator bool() const { return !arbol.esVacio(); }
};

} // namespace norvik
