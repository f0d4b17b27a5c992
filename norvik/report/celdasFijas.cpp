// SPDX-License-Identifier: MIT

#include "norvik/report/celdasFijas.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

std::vector<CeldaSLR> celdasFijas(const TablaLR& tabla) {
    std::vector<CeldaSLR> fijas;
    const std::int16_t inicial = tabla.codigoInicial();
    const std::int16_t fin = tabla.codigoFin();
    if (inicial >= 0) fijas.push_back({1, static_cast<std::int16_t>(inicial + 1), 1});
    if (fin >= 0 && fin != inicial)
        fijas.push_back({2, static_cast<std::int16_t>(fin + 1), TablaLR::aceptar});
    std::ranges::sort(fijas, {}, &CeldaSLR::columna);
    return fijas;
}

} // namespace norvik::inline v0_2
