// SPDX-License-Identifier: MIT

#include "norvik/tools/buscar.hpp"

#include "norvik/tools/ventanas.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "norvik/widget/ventanasDelControl.hpp"

#include <QEvent>
#include <QWindow>

namespace norvik {

QPointer<buscar>& buscar::abierto() {
    static QPointer<buscar> dialogo;
    return dialogo;
}

void buscar::muestra(ControlNorvik& control) {
    if (abierto().isNull()) {
        auto& dialogo = nuevo<buscar>(control.window());
        abierto() = &dialogo;
        dialogo.campos_.prepara();
        dialogo.buscador_.abre();
    }
    abierto()->apunta(control);
}

void buscar::olvida(const ControlNorvik& control) {
    if (!abierto().isNull() && abierto()->control_ == &control) abierto()->reject();
}

/// The window changes its place without being made anew, which it would be if its widget were told.
void buscar::ponEncima(bool encima) {
    if (abierto().isNull()) return;
    buscar& dialogo = *abierto();
    dialogo.overrideWindowFlags(dialogo.windowFlags().setFlag(Qt::WindowStaysOnTopHint, encima));
    if (QWindow* const ventana = dialogo.windowHandle(); ventana != nullptr)
        ventana->setFlag(Qt::WindowStaysOnTopHint, encima);
}

buscar::buscar(QWidget* ventana) : QDialog(ventana) {
    setObjectName(QStringLiteral("buscar"));
    setWindowTitle(QStringLiteral("Buscar"));
    setWindowFlag(Qt::WindowStaysOnTopHint);
    nombraElementos();
    dispone(*this, campos_, {&command1_, &command2_, &command3_});
    command3_.setEnabled(false); // there is a command of its own for that
    conecta();
}

buscar::~buscar() {
    if (abierto() == this) buscador_.cierra();
}

void buscar::nombraElementos() {
    nombra(command1_, "Command1", QStringLiteral("Buscar siguiente"));
    nombra(command2_, "Command2", QStringLiteral("Cancelar"));
    nombra(command3_, "Command3", QStringLiteral("Reemplazar"));
}

void buscar::conecta() {
    buscador_.ponEncima = &buscar::ponEncima;
    connect(&campos_, &CamposBusqueda::textoCambiado, &command1_, &QPushButton::setEnabled);
    connect(&command1_, &QPushButton::clicked, this, [this] { sinFallos([this] { buscaSiguiente(); }); });
    connect(&command2_, &QPushButton::clicked, this, &QDialog::reject);
}

/// Modal windows let only those be used that belong to them, so the dialog goes from window to window.
void buscar::apunta(ControlNorvik& control) {
    control_ = &control;
    buscador_.trabaja = [&control](const auto& trabajo) { ventanasDelControl::trabaja(control, trabajo); };
    if (parentWidget() != control.window()) {
        const QPoint donde = pos();
        setParent(control.window(), windowFlags());
        move(donde);
    }
    show();
    raise();
    activateWindow();
}

void buscar::done(int resultado) {
    sinFallos([this] { buscador_.cierra(); });
    abierto().clear();
    QDialog::done(resultado);
    deleteLater();
}

void buscar::changeEvent(QEvent* evento) {
    QDialog::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow()) campos_.enfoca();
}

/// While something is told, the control may go, and take this dialog along: the search works on a searcher of
/// its own. The text takes the focus after a new search; who found nothing goes on in the dialog.
void buscar::buscaSiguiente() {
    Buscador buscador = buscador_;
    const QPointer<buscar> vivo(this);
    bool hallada = false;
    const auto fallo = falloDe([&] { hallada = buscador.buscaSiguiente(campos_.peticion()); });
    if (!fallo.empty()) buscador.avisa(fallo, {}, Icono::Ninguno);
    if (vivo.isNull()) return;
    campos_.ponHistorial();
    if (!hallada) activateWindow();
}

} // namespace norvik
