#pragma once

#include <cstdint>
#include <string>

namespace norvik {

/// The options that the control keeps, with their values in a new control. Colours and `AutoNumero` are the
/// lexer's, the font is the text box's.
struct Opciones {
    bool borde3D = true;                 ///< the sunken frame is shown
    bool leftBorderVisible = true;       ///< the left border is shown
    std::int16_t margenIzquierdo = 150;  ///< from the separator to the text, in twips
    bool hideSelection = true;           ///< the host's wish for the text box
    bool lenguajeSensible = false;       ///< definitions registered from now on tell upper from lower case
    bool autoCorreccion = false;         ///< colouring corrects the case of reserved words
    std::int16_t espaciosXTAB = 4;       ///< spaces that a tab key inserts
    bool autoTAB = true;                 ///< a new line takes the leading spaces of the one above
    bool marcarErrores = false;          ///< an error of the parse marks its line
    bool muestraMensajesDeError = false; ///< an error of the parse is shown in a message box
    bool colorear = false;               ///< syntax colouring is on
    std::u16string nombreLenguaje;
    std::u16string contenidoG;      ///< the language specification being worked on
    std::u16string codigoPrueba;    ///< the text to try it with
    bool pendienteGuardarG = false; ///< the specification was changed since the control was restored
};

} // namespace norvik
