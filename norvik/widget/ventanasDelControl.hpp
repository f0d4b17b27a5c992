// SPDX-License-Identifier: MIT

#pragma once

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

} // namespace ventanasDelControl

} // namespace norvik
