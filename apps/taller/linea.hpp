// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>
#include <variant>

namespace norvik::taller {

/// What the workbench opens when it starts; an empty path is nothing.
struct Arranque {
    QString lenguaje;
    QString texto;
};

/// The line is answered on the terminal, and no window opens.
struct Contesta {
    std::string texto;
    int estado = 0; ///< 0, or 2 for a wrong line
};

std::variant<Arranque, Contesta> leeLinea(int argc, const char* const* argv);

} // namespace norvik::taller
