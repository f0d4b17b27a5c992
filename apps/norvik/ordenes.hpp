// SPDX-License-Identifier: MIT

#pragma once

#include "linea.hpp"
#include "salida.hpp"

namespace norvik::orden {

// Each order gives the exit status; the caller writes what is left of its output.
inline int ejecuta(const Contesta& orden, Salida& salida) {
    salida.escribe(orden.texto);
    return 0;
}
int ejecuta(const Analiza& orden, Salida& salida);
int ejecuta(const Lexemas& orden, Salida& salida);
int ejecuta(const Colorea& orden, Salida& salida);
int ejecuta(const Informe& orden, Salida& salida);
int ejecuta(const Modulo& orden, Salida& salida);
int ejecuta(const Revisa& orden, Salida& salida);
int ejecuta(const Prueba& orden, Salida& salida);
int ejecuta(const Frases& orden, Salida& salida);

} // namespace norvik::orden
