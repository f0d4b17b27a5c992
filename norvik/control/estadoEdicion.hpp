// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace norvik {

/// What the parts that touch the text box know of each other's work. `lineaMarcada` is 1-based, the other
/// lines and positions are 0-based.
struct EstadoEdicion {
    bool ocupado = false;               ///< the control itself is at work on the box: its events are ignored
    bool lineaEnEdicion = true;         ///< the caret's line was turned plain and waits to be coloured
    bool recoloreaRango = false;        ///< text that may span lines came in and waits to be coloured
    std::int32_t lineaMarcada = -1;     ///< line in the error colour, -1 when none
    std::int32_t numLineas = 0;         ///< line count at the last change of the text
    std::int32_t numLineasAnterior = 1; ///< at the change before
    std::int32_t lineaAnterior = 0;     ///< line of the caret when it last changed line
    std::int32_t posicionAnterior = 0;  ///< and its position then
    std::int32_t primeraLineaVisible = 0; ///< at the last change of the selection
};

} // namespace norvik
