#pragma once

#include <cstdint>

namespace norvik {

/// A place in a text. The units are those of whoever gave the text: bytes of UTF-8, or UTF-16 units.
struct Punto {
    std::int32_t desplazamiento = 0; ///< units before it, from 0
    std::int32_t linea = 1;          ///< from 1; a line ends with CR LF, CR or LF
    std::int32_t columna = 1;        ///< from 1, in units

    bool operator==(const Punto&) const = default;
};

/// A part of a text, from its first unit up to the one behind its last.
struct Rango {
    Punto inicio;
    Punto fin;

    bool operator==(const Rango&) const = default;
};

} // namespace norvik
