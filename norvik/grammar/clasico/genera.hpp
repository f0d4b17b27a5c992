// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramaticaLR.hpp"

namespace norvik::inline v0_2::clasico {

/// Derives all from rules that `chequea` has nothing to say of. Raises what the steps raise (conjuntos.hpp,
/// automata.hpp, tabla.hpp).
GramaticaLR genera(Reglas reglas);

} // namespace norvik::inline v0_2::clasico
