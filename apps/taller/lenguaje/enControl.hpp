// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/spec/lenguaje.hpp"
#include "norvik/widget/controlNorvik.hpp"

// What the language window does to the controls of its editors.
namespace norvik::taller {

/// A control takes a language as it is, table included, in the place of its own, and colours its text.
void carga(const Lenguaje& lenguaje, ControlNorvik& norvik);
/// Carries out a repair of the text, which one undo takes back. A name that stands for what is to be written
/// ends selected.
void aplica(const Arreglo& arreglo, ControlNorvik& norvik);

} // namespace norvik::taller
