// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace norvik {

/// An entry of an SLR table, with its 1-based row and column.
struct CeldaSLR {
    std::int16_t fila = 0;
    std::int16_t columna = 0;
    std::int16_t valor = 0;
};

} // namespace norvik
