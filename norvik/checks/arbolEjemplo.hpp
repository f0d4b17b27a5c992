// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Un símbolo de un árbol de ejemplo.
struct NodoEjemplo {
    std::u16string simbolo;
    std::int16_t regla = 0;          ///< por la que se desarrolla; 0 en las hojas
    std::vector<std::int32_t> hijos; ///< de izquierda a derecha, por su sitio en el árbol

    bool operator==(const NodoEjemplo&) const = default;
};

/// Un árbol de derivación en que puede quedar alguna variable sin desarrollar. Los hijos están delante de su
/// padre; la raíz es el último nodo.
struct ArbolEjemplo {
    std::vector<NodoEjemplo> nodos;

    bool operator==(const ArbolEjemplo&) const = default;
};

/// Las hojas de un árbol de izquierda a derecha; una variable vacía no tiene ninguna.
NORVIK_API std::vector<std::u16string> hojas(const ArbolEjemplo& arbol);
/// «S1[a S2[Ø]]», con el número de cada regla: dos árboles son el mismo cuando lo es este texto.
NORVIK_API std::u16string enTexto(const ArbolEjemplo& arbol);

} // namespace norvik::inline v0_2
