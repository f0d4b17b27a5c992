// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramaticaLR.hpp"

#include <QString>

// The sets of a variable in words.
namespace norvik::taller {

QString primerosDe(const GramaticaLR& gramatica, Simbolo variable);
QString siguientesDe(const GramaticaLR& gramatica, Simbolo variable);
/// Nothing may come of it.
bool esAnulable(const GramaticaLR& gramatica, Simbolo variable);
/// All that, and its rules, a line each.
QString conjuntosEnPalabras(const GramaticaLR& gramatica, Simbolo variable);

} // namespace norvik::taller
