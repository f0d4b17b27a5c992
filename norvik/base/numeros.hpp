// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"

#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

namespace norvik::inline v0_2 {

/// What a number is called where nobody says better. A literal in its place would be measured at each call.
inline constexpr std::u16string_view unNumero = u"el número";

/// Narrows an integer to `Destino`. Raises `Desbordamiento`, which says what the number is, when it does not
/// fit.
template <typename Destino, typename Origen>
requires std::is_integral_v<Destino> && std::is_integral_v<Origen>
constexpr Destino estrecha(Origen valor, std::u16string_view que = unNumero) {
    const auto resultado = static_cast<Destino>(valor);
    const bool mismoSigno = (resultado < Destino{}) == (valor < Origen{});
    if (static_cast<Origen>(resultado) != valor || !mismoSigno)
        throw Desbordamiento(que, static_cast<std::int64_t>(valor), std::numeric_limits<Destino>::min(),
                             std::numeric_limits<Destino>::max());
    return resultado;
}

/// Narrows to the 16-bit signed integer that public operations use.
template <typename Origen>
constexpr std::int16_t a16(Origen valor, std::u16string_view que = unNumero) {
    return estrecha<std::int16_t>(valor, que);
}

/// Narrows to the 32-bit signed integer that public operations use.
template <typename Origen>
constexpr std::int32_t a32(Origen valor, std::u16string_view que = unNumero) {
    return estrecha<std::int32_t>(valor, que);
}

} // namespace norvik::inline v0_2
