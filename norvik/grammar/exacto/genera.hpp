// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/opcionesTabla.hpp"

#include <stop_token>

namespace norvik::inline v0_2::exacto {

/// Derives all from rules that `chequea` has nothing to say of, by an exact method. Raises what the steps
/// raise (producciones.hpp, automata.hpp).
GramaticaLR genera(Reglas reglas, const OpcionesTabla& opciones, const std::stop_token& parada = {});

} // namespace norvik::inline v0_2::exacto
