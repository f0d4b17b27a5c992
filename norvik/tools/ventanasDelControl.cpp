// SPDX-License-Identifier: MIT

#include "norvik/widget/ventanasDelControl.hpp"

#include "norvik/control/norvik.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/tools/acerca.hpp"
#include "norvik/tools/buscar.hpp"
#include "norvik/tools/informe.hpp"
#include "norvik/tools/procesando.hpp"
#include "norvik/tools/reemplazar.hpp"
#include "norvik/tools/ventanas.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QInputDialog>
#include <QPointer>

#include <algorithm>

namespace norvik::ventanasDelControl {

namespace {

/// 1-based; the last one if there are not so many any more. Whoever hears of the focus may delete the
/// control.
void vaALinea(ControlNorvik& control, int linea) {
    const QPointer<ControlNorvik> vivo(&control);
    CajaTextoQt& caja = control.caja();
    caja.enfoca();
    if (vivo.isNull()) return;
    caja.selecciona(caja.inicioDeLinea(std::min(linea, caja.numeroDeLineas()) - 1), 0);
}

} // namespace

void muestraInforme(ControlNorvik& control) {
    MuestraInforme(control.control().Gramatica(), control.control().Lexico(), control.sistema(), &control);
}

void muestraAcerca(ControlNorvik& control) {
    muestraModal<Acerca>(control.sistema(), &control);
}

void muestraReemplazar(ControlNorvik& control) {
    Reemplazar::muestra(control);
}

void preguntaLinea(ControlNorvik& control) {
    const QPointer<ControlNorvik> vivo(&control);
    const CajaTextoQt& caja = control.caja();
    const VentanaDeAmbito<QInputDialog> dialogo(control.window());
    dialogo->setObjectName(QStringLiteral("irALinea"));
    dialogo->setWindowTitle(QStringLiteral("Ir a la línea"));
    dialogo->setInputMode(QInputDialog::IntInput);
    dialogo->setIntRange(1, caja.numeroDeLineas());
    dialogo->setIntValue(caja.lineaDeCaracter(caja.inicioSeleccion()) + 1);
    dialogo->setLabelText(QStringLiteral("Línea, de 1 a %1:").arg(caja.numeroDeLineas()));
    dialogo->setOkButtonText(QStringLiteral("Ir"));
    dialogo->setCancelButtonText(QStringLiteral("Cancelar"));
    control.sistema().muestraModal(*dialogo);
    if (vivo.isNull() || !dialogo.vive() || dialogo->result() != QDialog::Accepted) return;
    const int linea = dialogo->intValue();
    control.caja().atiende([&] { vaALinea(control, linea); });
}

void muestraBuscar(ControlNorvik& control) {
    buscar::muestra(control);
}

void olvida(const ControlNorvik& control) {
    buscar::olvida(control);
}

void trabaja(ControlNorvik& control, const std::function<void(std::stop_token)>& trabajo) {
    trabajaConAviso(control.sistema(), control.window(), trabajo);
}

} // namespace norvik::ventanasDelControl
