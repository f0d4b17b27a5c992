// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/metodo.hpp"
#include "norvik/grammar/precedencia.hpp"

namespace norvik::inline v0_2 {

/// Cómo se hace la tabla de una gramática.
struct OpcionesTabla {
    Metodo metodo = Metodo::Clasico;
    Precedencias precedencias; ///< con los métodos exactos: lo que resuelven deja de ser un conflicto
};

} // namespace norvik::inline v0_2
