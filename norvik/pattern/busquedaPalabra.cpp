// SPDX-License-Identifier: MIT

#include "norvik/pattern/busquedaPalabra.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

BusquedaPalabra::BusquedaPalabra(std::u16string_view palabra, bool ignoraMayusculas)
    : palabra_(palabra), ignoraMayusculas_(ignoraMayusculas), bordes_(palabra.size()) {
    if (ignoraMayusculas) std::ranges::transform(palabra_, palabra_.begin(), pliega);
    for (std::size_t i = 1; i < palabra_.size(); ++i)
        bordes_[i] = static_cast<std::uint16_t>(avanza(bordes_[i - 1], palabra_[i]));
}

} // namespace norvik::inline v0_2
