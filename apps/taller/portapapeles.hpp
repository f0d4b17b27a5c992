// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/widget/controlNorvik.hpp"

// What the edit menu does to a control. Cutting and pasting go through the keys that do the same, so that the
// control sees what a user does.
namespace norvik::taller {

void corta(ControlNorvik& norvik);
void copia(ControlNorvik& norvik);
void pega(ControlNorvik& norvik);
void seleccionaTodo(ControlNorvik& norvik);

} // namespace norvik::taller
