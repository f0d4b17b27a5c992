// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <string>

namespace norvik::taller {

/// A language to begin with, and a text of it.
struct Plantilla {
    const char* titulo;
    const char* explicacion;
    const char* fichero; ///< among the program's resources, without its ending; empty for nothing at all

    std::u16string especificacion() const;
    std::u16string texto() const;
};

inline constexpr std::array plantillas = {
    Plantilla{"Vacío", "Solo la línea que elige el método", ""},
    Plantilla{"Expresiones", "Números, operaciones con su precedencia y paréntesis", "expresiones"},
    Plantilla{"Lista", "Elementos entre corchetes, separados con comas, y listas dentro", "lista"},
    Plantilla{"Instrucciones", "Asignaciones, condiciones y bucles, con palabras reservadas",
              "instrucciones"},
};

} // namespace norvik::taller
