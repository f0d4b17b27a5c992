// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace norvik::inline v0_2 {

/// A hash for tables of short texts. It differs between machines of another byte order: nothing shows it.
inline std::size_t huella(std::u16string_view texto) {
    constexpr std::uint64_t multiplicador = 0x9E3779B97F4A7C15;
    constexpr std::size_t grupo = sizeof(std::uint64_t) / sizeof(char16_t);
    std::uint64_t suma = texto.size();
    const auto anota = [&suma](std::uint64_t unidades) {
        suma = (suma ^ unidades) * multiplicador;
        suma ^= suma >> 32U;
    };
    for (; texto.size() >= grupo; texto.remove_prefix(grupo)) {
        std::uint64_t unidades = 0;
        std::memcpy(&unidades, texto.data(), sizeof unidades);
        anota(unidades);
    }
    std::uint64_t resto = 0;
    for (const char16_t unidad : texto) resto = resto << 16U | unidad;
    anota(resto);
    return static_cast<std::size_t>(suma);
}

} // namespace norvik::inline v0_2
