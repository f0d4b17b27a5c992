// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/checks/historiaConflicto.hpp"

#include <string>

namespace norvik::inline v0_2 {

/// La historia de un conflicto para una terminal: líneas de no más de 80 caracteres, acabadas en un salto de
/// línea, con los dos árboles dibujados.
NORVIK_API std::u16string enTexto(const HistoriaConflicto& historia);
/// Si de dos conflictos se dice lo mismo, salvo el token: uno basta a una persona.
NORVIK_API bool seCuentanIgual(const HistoriaConflicto& una, const HistoriaConflicto& otra);

} // namespace norvik::inline v0_2
