// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>

namespace norvik::inline v0_2 {

/// Los eventos del control hacia su anfitrión, con sus propios nombres. El receptor puede cambiar los
/// argumentos. No se da ninguno mientras el propio control trabaja con su texto. Un cambio que también mueve
/// el cursor está ya anotado y coloreado cuando se da, y es `CambioDeLinea`, `SelChange` y `change`, por este
/// orden.
struct EventosControl {
    using Tecla = std::function<void(std::int16_t& KeyCode, std::int16_t& Shift)>;
    using Raton = std::function<void(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)>;

    std::function<void(std::int16_t& LineaActual)> CambioDeLinea; ///< la nueva línea del cursor, desde 1
    std::function<void()> change; ///< no mientras Undo y Redo reescriben el texto: quien siga el texto oiga
                                  ///< `textoCambiado`
    std::function<void()> Click;
    Tecla KeyDown;
    std::function<void(std::int16_t& KeyAscii)> KeyPress;
    Tecla KeyUp;
    Raton MouseDown;
    Raton MouseMove;
    Raton MouseUp;
    std::function<void()> SelChange; ///< no mientras Undo y Redo reescriben el texto

    /// El texto es otro, por lo que sea: también por Undo, Redo, un reemplazo o una palabra corregida. Se da
    /// al acabar lo que lo cambió, y detrás de los demás; varios cambios seguidos pueden ser uno.
    std::function<void()> textoCambiado;
};

} // namespace norvik::inline v0_2
