#pragma once

#include "norvik/base/texto.hpp"

#include <concepts>
#include <string>
#include <string_view>

namespace norvik {

inline void aniadePieza(std::u16string& texto, std::u16string_view pieza) {
    texto += pieza;
}
inline void aniadePieza(std::u16string& texto, std::integral auto numero) {
    texto += aTexto(numero);
}

/// Appends a line made of texts and numbers, with its line break.
template <typename... Piezas>
void escribeLinea(std::u16string& texto, const Piezas&... piezas) {
    (aniadePieza(texto, piezas), ...);
    texto += saltoDeLinea;
}

} // namespace norvik
