#pragma once

#include "norvik/base/errores.hpp"

#include <cstdint>
#include <limits>
#include <type_traits>

namespace norvik {

/// Narrows an integer to `Destino`. Raises `Desbordamiento` when the value does not fit.
template <typename Destino, typename Origen>
requires std::is_integral_v<Destino> && std::is_integral_v<Origen>
constexpr Destino estrecha(Origen valor) {
    const auto resultado = static_cast<Destino>(valor);
    const bool mismoSigno = (resultado < Destino{}) == (valor < Origen{});
    if (static_cast<Origen>(resultado) != valor || !mismoSigno) throw Desbordamiento();
    return resultado;
}

/// Narrows to the 16-bit signed integer that public operations use.
template <typename Origen>
constexpr std::int16_t a16(Origen valor) {
    return estrecha<std::int16_t>(valor);
}

/// Narrows to the 32-bit signed integer that public operations use.
template <typename Origen>
constexpr std::int32_t a32(Origen valor) {
    return estrecha<std::int32_t>(valor);
}

} // namespace norvik
