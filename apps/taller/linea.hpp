// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>
#include <variant>

namespace norvik::taller {

/// What the workbench opens when it starts; an empty path is nothing.
struct Arranque {
    QString formulario;
    QString especificacion; ///< for the language window
    QString lenguaje;       ///< of the form's editor: a specification or a module
    QString texto; ///< of the language window when there is a specification, else of the form's editor

    bool vacio() const {
        return formulario.isEmpty() && especificacion.isEmpty() && lenguaje.isEmpty() && texto.isEmpty();
    }
};

/// The line is answered on the terminal, and no window opens.
struct Contesta {
    std::string texto;
    int estado = 0; ///< 0, or 2 for a wrong line
};

std::variant<Arranque, Contesta> leeLinea(int argc, const char* const* argv);

} // namespace norvik::taller
