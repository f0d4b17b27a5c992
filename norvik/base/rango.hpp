// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace norvik::inline v0_2 {

/// Un lugar de un texto. Las unidades son las de quien dio el texto: bytes de UTF-8 o unidades UTF-16.
struct Punto {
    std::int32_t desplazamiento = 0; ///< unidades que hay delante, desde 0
    std::int32_t linea = 1;          ///< desde 1; una línea acaba con CR LF, CR o LF
    std::int32_t columna = 1;        ///< desde 1, en unidades

    bool operator==(const Punto&) const = default;
};

/// Una parte de un texto, de su primera unidad a la que sigue a la última.
struct Rango {
    Punto inicio;
    Punto fin;

    bool operator==(const Rango&) const = default;
};

} // namespace norvik::inline v0_2
