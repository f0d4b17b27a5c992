// SPDX-License-Identifier: MIT

#include "norvik/widget/ventanasDelControl.hpp"

#include "norvik/control/norvik.hpp"
#include "norvik/tools/acerca.hpp"
#include "norvik/tools/buscar.hpp"
#include "norvik/tools/informe.hpp"
#include "norvik/tools/reemplazar.hpp"
#include "norvik/tools/ventanas.hpp"
#include "norvik/widget/controlNorvik.hpp"

namespace norvik::ventanasDelControl {

void muestraInforme(ControlNorvik& control) {
    MuestraInforme(control.control().Gramatica(), control.control().Lexico(), control.sistema(), &control);
}

void muestraAcerca(ControlNorvik& control) {
    muestraModal<Acerca>(control.sistema(), &control);
}

void muestraReemplazar(ControlNorvik& control) {
    Reemplazar::muestra(control);
}

void muestraBuscar(ControlNorvik& control) {
    buscar::muestra(control);
}

void olvida(const ControlNorvik& control) {
    buscar::olvida(control);
}

} // namespace norvik::ventanasDelControl
