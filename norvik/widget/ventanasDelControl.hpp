// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <stop_token>

namespace norvik {

class ControlNorvik;

/// The windows that a control opens. They know controls and what stands around them, and are defined with the
/// other windows. Modal ones come back when they are closed; the control may go meanwhile.
namespace ventanasDelControl {

void muestraInforme(ControlNorvik& control);
void muestraAcerca(ControlNorvik& control);
void muestraReemplazar(ControlNorvik& control);
/// Asks for a line, and puts the caret there.
void preguntaLinea(ControlNorvik& control);
/// There is one find dialog, and it is for the control that showed it last.
void muestraBuscar(ControlNorvik& control);
/// The control goes, and the find dialog that was for it.
void olvida(const ControlNorvik& control);

/// Does work that touches no window where a person can cancel it, with a notice once it takes long
/// (`SistemaQt::trabaja`). The control may go meanwhile.
void trabaja(ControlNorvik& control, const std::function<void(std::stop_token)>& trabajo);

} // namespace ventanasDelControl

} // namespace norvik
