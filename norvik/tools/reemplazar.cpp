// SPDX-License-Identifier: MIT

#include "norvik/tools/reemplazar.hpp"

#include "norvik/tools/buscar.hpp"
#include "norvik/tools/ventanas.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "norvik/widget/ventanasDelControl.hpp"

#include <algorithm>

namespace norvik {

void Reemplazar::muestra(ControlNorvik& control) {
    buscar::ponEncima(false);
    muestraModal<Reemplazar>(control.sistema(), control);
    buscar::ponEncima(true);
}

Reemplazar::Reemplazar(ControlNorvik& control) : QDialog(control.window()) {
    busqueda_->destino = control.control().destinoBusqueda();
    busqueda_->buscador.trabaja = [&control](const auto& trabajo) { // there is a text, so there is a control
        ventanasDelControl::trabaja(control, trabajo);
    };
    setObjectName(QStringLiteral("Reemplazar"));
    setWindowTitle(QStringLiteral("Reemplazar"));
    nombraElementos();
    campos_.pon(combo3_, QStringLiteral("Reemplazar con :"));
    dispone(*this, campos_, {&command1_, &command2_, &command3_, &command4_});
    conecta();
    connect(&control, &QObject::destroyed, this, [this] {
        busqueda_->destino = {};
        reject();
    });
    ponTextos(combo3_, estadoBusqueda().historialReemplazos);
    campos_.prepara();
    campos_.enfoca();
    busqueda_->destino.descubreSeleccion();
}

void Reemplazar::nombraElementos() {
    hazEditable(combo3_, "Combo3", QStringLiteral("Reemplazar con"));
    nombra(command1_, "Command1", QStringLiteral("Buscar siguiente"));
    nombra(command2_, "Command2", QStringLiteral("Reemplazar"));
    nombra(command3_, "Command3", QStringLiteral("Reemplazar todo"));
    nombra(command4_, "Command4", QStringLiteral("Cancelar"));
}

void Reemplazar::conecta() {
    conecta(command1_, [this](Buscador& b) { b.buscaSiguiente(campos_.peticion()); });
    conecta(command2_, [this](Buscador& b) { b.reemplaza(campos_.peticion(), con()); });
    conecta(command3_, [this](Buscador& b) { b.reemplazaTodo(campos_.peticion(), con()); });
    connect(&command4_, &QPushButton::clicked, this, &QDialog::reject);
}

/// A command needs a text to search.
void Reemplazar::conecta(QPushButton& boton, const Orden& orden) {
    connect(&campos_, &CamposBusqueda::textoCambiado, &boton, &QPushButton::setEnabled);
    connect(&boton, &QPushButton::clicked, this, [this, orden] { sinFallos([&] { ejecuta(orden); }); });
}

void Reemplazar::ejecuta(const Orden& orden) {
    const std::shared_ptr<Busqueda> busqueda = busqueda_;
    const QPointer<Reemplazar> vivo(this);
    const std::u16string fallo = falloDe([&] { orden(busqueda->buscador); });
    if (!fallo.empty()) busqueda->buscador.avisa(fallo, {}, Icono::Ninguno);
    if (!vivo.isNull()) recuerda();
}

/// The control is still there, or the target is empty.
void Reemplazar::abandona() {
    busqueda_->destino.devuelveSeleccion();
    busqueda_->destino = {};
}

void Reemplazar::recuerda() {
    campos_.ponHistorial();
    auto& historial = estadoBusqueda().historialReemplazos;
    const std::u16string puesto = con();
    const bool nuevo = std::find(historial.begin(), historial.end(), puesto) == historial.end();
    if (puesto.empty() || !nuevo) return;
    historial.push_back(puesto);
    ponTextos(combo3_, historial);
}

} // namespace norvik
