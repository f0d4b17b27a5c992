#pragma once

namespace norvik {

/// The switches of the control that its parts consult, with their values in a new control.
struct Opciones {
    bool lenguajeSensible = false;       ///< definitions registered from now on tell upper from lower case
    bool autoCorreccion = false;         ///< colouring corrects the case of reserved words
    bool marcarErrores = false;          ///< an error of the parse marks its line
    bool muestraMensajesDeError = false; ///< an error of the parse is shown in a message box
    bool colorear = false;               ///< syntax colouring is on
};

} // namespace norvik
