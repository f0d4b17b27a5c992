// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/parser/arbolAnalisis.hpp"

#include <stop_token>
#include <vector>

namespace norvik {

/// Lo que se puede pedir a un análisis.
struct OpcionesAnalisis {
    std::stop_token cancelacion; ///< acaba pronto la operación, con el diagnóstico `Cancelado`
};

/// Lo que da un análisis: el árbol de un texto aceptado; si no, uno vacío y lo que está mal.
struct Analisis {
    ArbolAnalisis arbol;                   ///< vacío si el texto no se aceptó
    std::vector<Diagnostico> diagnosticos; ///< el primer error, si lo hay

    /// El texto se aceptó.
    explicit operator bool() const { return !arbol.esVacio(); }
};

} // namespace norvik
