// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

/// Cómo se hacen los conjuntos, el autómata y la tabla de una gramática.
enum class Metodo : std::uint8_t {
    Clasico, ///< los pasos de siempre, los de todo programa y módulo que no pide otra cosa
    Slr,     ///< autómata LR(0), conjuntos exactos; se reduce con los siguientes de la variable
    Lalr,    ///< se reduce con lo que puede seguir en ese estado
    Lr1,     ///< además, los estados que lo necesitan se separan
};

inline constexpr std::array<std::pair<std::u16string_view, Metodo>, 4> metodos{
    {{u"clasico", Metodo::Clasico}, {u"slr", Metodo::Slr}, {u"lalr", Metodo::Lalr}, {u"lr1", Metodo::Lr1}}};

/// El método de un nombre.
constexpr std::optional<Metodo> metodoLlamado(std::u16string_view nombre) {
    for (const auto& [suyo, metodo] : metodos)
        if (suyo == nombre) return metodo;
    return std::nullopt;
}

} // namespace norvik::inline v0_2
