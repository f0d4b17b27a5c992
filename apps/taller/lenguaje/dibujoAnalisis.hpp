// SPDX-License-Identifier: MIT

#pragma once

#include "dibujoArbol.hpp"
#include "modeloAnalisis.hpp"

#include <cstddef>

namespace norvik::taller {

/// A tree of a study as it is drawn: the nodes nearest to its root, as many as a person looks over.
struct DibujoAnalisis {
    ArbolDibujado arbol;
    std::size_t ocultos = 0; ///< nodes that have more below them than is drawn
};

/// The rows of a model, each with its text below a token; their numbers are those of the nodes.
DibujoAnalisis dibujoDe(const ModeloAnalisis& modelo, std::size_t maximo);

} // namespace norvik::taller
