// SPDX-License-Identifier: MIT

#include "norvik/tools/paginaPropiedades.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QScopedValueRollback>

#include <utility>

namespace norvik {

PaginaPropiedades::PaginaPropiedades(SistemaQt& sistema, const QString& titulo, QWidget* padre)
    : QWidget(padre), sistema_(sistema), titulo_(titulo) {
    setAccessibleName(titulo);
    setEnabled(false);
    sistema_.ponPuntero(Puntero::Normal);
}

void PaginaPropiedades::cambiaSeleccion(const QList<ControlNorvik*>& controles) {
    suelta(Motivo::OtraSeleccion);
    control_ = controles.value(0);
    setEnabled(control_ != nullptr);
    if (control_ == nullptr) return;
    connect(control_, &QObject::destroyed, this, [this] {
        control_ = nullptr;
        setEnabled(false);
    });
    const QScopedValueRollback<bool> leyendo(leyendo_, true);
    lee(*control_);
}

bool PaginaPropiedades::aplica() {
    bool escrita = false;
    if (control_ != nullptr) norvik::ejecuta(sistema_, [&] { escrita = escribe(*control_); });
    if (!escrita) return false;
    ponCambiada(false);
    return true;
}

void PaginaPropiedades::suelta(Motivo motivo) {
    if (control_ != nullptr) norvik::ejecuta(sistema_, [&] { deja(*control_, motivo); });
    if (control_ != nullptr) control_->disconnect(this);
    control_ = nullptr;
    setEnabled(false);
    ponCambiada(false);
}

void PaginaPropiedades::ponCambiada(bool cambiada) {
    if (std::exchange(cambiada_, cambiada) != cambiada) emit cambio(cambiada);
}

QLabel& PaginaPropiedades::titular(const QString& texto) {
    auto& titular = nuevo<QLabel>(texto, this);
    QFont letra = titular.font();
    letra.setBold(true);
    titular.setFont(letra);
    return titular;
}

void PaginaPropiedades::ejecuta(const std::function<void()>& orden) {
    if (ocupada_) return;
    const QScopedValueRollback<bool> ocupada(ocupada_, true);
    norvik::ejecuta(sistema_, orden);
}

} // namespace norvik
