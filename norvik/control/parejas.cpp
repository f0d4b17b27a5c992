// SPDX-License-Identifier: MIT

#include "norvik/control/parejas.hpp"

namespace norvik::inline v0_2 {

namespace {

using Juntos = std::function<bool(std::int32_t, std::int32_t)>;

/// A bracket as it reads, its other half, and where that is looked for.
struct Parentesis {
    char16_t este;
    char16_t otro;
    std::int32_t paso;
};

std::optional<Parentesis> parentesis(char16_t c) {
    constexpr std::u16string_view abren = u"([{";
    constexpr std::u16string_view cierran = u")]}";
    if (const auto i = abren.find(c); i != abren.npos) return Parentesis{c, cierran[i], 1};
    if (const auto i = cierran.find(c); i != cierran.npos) return Parentesis{c, abren[i], -1};
    return std::nullopt;
}

/// One opens for each that reads the same, and one closes for each other half.
std::optional<std::int32_t> otraDe(std::u16string_view texto, std::int32_t lugar, const Parentesis& p,
                                   const Juntos& juntos) {
    const auto total = static_cast<std::int32_t>(texto.size());
    std::int32_t abiertos = 0;
    for (std::int32_t i = lugar; i >= 0 && i < total; i += p.paso) {
        const char16_t c = texto[static_cast<std::size_t>(i)];
        if ((c != p.este && c != p.otro) || !juntos(lugar, i)) continue;
        abiertos += c == p.este ? 1 : -1;
        if (abiertos == 0) return i;
    }
    return std::nullopt;
}

} // namespace

std::optional<Pareja> parejaEn(std::u16string_view texto, std::int32_t cursor, const Juntos& juntos) {
    for (const std::int32_t lugar : {cursor - 1, cursor}) {
        if (lugar < 0 || static_cast<std::size_t>(lugar) >= texto.size()) continue;
        const auto p = parentesis(texto[static_cast<std::size_t>(lugar)]);
        if (p) return Pareja{lugar, otraDe(texto, lugar, *p, juntos)};
    }
    return std::nullopt;
}

} // namespace norvik::inline v0_2
