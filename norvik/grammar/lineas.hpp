#pragma once

#include "norvik/base/ficheros.hpp"
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
    const char* const fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), numero).ptr;
    for (const char* cifra = cifras.data(); cifra != fin; ++cifra) texto += static_cast<char16_t>(*cifra);
}

/// Appends a line made of texts and numbers, with its line break.
template <typename... Piezas>
void escribeLinea(std::u16string& texto, const Piezas&... piezas) {
    (aniadePieza(texto, piezas), ...);
    texto += saltoDeLinea;
}

/// Hands over the lines gathered so far once they are many.
inline void entregaSiSonMuchas(std::u16string& lineas, const SumideroDeTexto& sumidero) {
    constexpr std::size_t muchas = 16384;
    if (lineas.size() < muchas) return;
    sumidero(lineas);
    lineas.clear();
}

} // namespace norvik
