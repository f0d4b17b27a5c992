// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/cajaTexto.hpp"

namespace norvik::inline v0_2 {

/// El nombre que tuvo la caja de los anfitriones sin ventanas, que hay en sus programas.
using CajaTextoMemoria = CajaTexto;

} // namespace norvik::inline v0_2
