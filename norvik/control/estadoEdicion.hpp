#pragma once

#include <cstdint>

namespace norvik {

/// What the parts that touch the text box know of each other's work. Lines are 1-based.
struct EstadoEdicion {
    bool ocupado = false;           ///< the control itself is at work on the box: its events are ignored
    bool lineaEnEdicion = true;     ///< the caret's line was turned plain and waits to be coloured
    std::int32_t lineaMarcada = -1; ///< line in the error colour, -1 when none
    std::int32_t numLineas = 0;     ///< line count at the last change of the text
};

} // namespace norvik
