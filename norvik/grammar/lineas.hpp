#pragma once

#include "norvik/base/texto.hpp"

#include <array>
#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

namespace norvik {

inline void aniadePieza(std::u16string& texto, std::u16string_view pieza) {
    texto += pieza;
}
inline void aniadePieza(std::u16string& texto, std::integral auto numero) {
    std::array<char, 24> cifras{};
    const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), numero).ptr;
    texto.append(cifras.data(), fin);
}

/// Appends a line made of texts and numbers, with its line break.
template <typename... Piezas>
void escribeLinea(std::u16string& texto, const Piezas&... piezas) {
    (aniadePieza(texto, piezas), ...);
    texto += saltoDeLinea;
}

} // namespace norvik
