// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace norvik::inline v0_2 {

/// Una entrada de una tabla SLR, con su fila y su columna desde 1.
struct CeldaSLR {
    std::int16_t fila = 0;
    std::int16_t columna = 0;
    std::int16_t valor = 0;
};

} // namespace norvik::inline v0_2
