#pragma once

#include <cstdint>
#include <functional>

namespace norvik {

/// The control's events towards its host, under their own names. Arguments may be changed by the receiver.
/// None is raised while the control itself works on its text.
struct EventosControl {
    using Tecla = std::function<void(std::int16_t& KeyCode, std::int16_t& Shift)>;
    using Raton = std::function<void(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)>;

    std::function<void(std::int16_t& LineaActual)> CambioDeLinea; ///< the caret's new line, 1-based
    std::function<void()> change; ///< not while Undo and Redo rewrite the text
    std::function<void()> Click;
    Tecla KeyDown;
    std::function<void(std::int16_t& KeyAscii)> KeyPress;
    Tecla KeyUp;
    Raton MouseDown;
    Raton MouseMove;
    Raton MouseUp;
    std::function<void()> SelChange; ///< not while Undo and Redo rewrite the text
};

} // namespace norvik
