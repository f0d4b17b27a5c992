// SPDX-License-Identifier: MIT

#include "panel.hpp"

#include "presentacion.hpp"

#include <chrono>

namespace norvik::taller {

Panel::Panel(const QString& nombre, const QString& titulo, QWidget* padre)
    : QDockWidget(titulo, padre), titulo_(titulo) {
    using namespace std::chrono_literals;
    setObjectName(nombre);
    setWidget(&marco_);
    ponLetraDelTitulo(*this);
    espera_.setSingleShot(true);
    espera_.setInterval(200ms);
    connect(&espera_, &QTimer::timeout, this, [this] { protege([this] { actualizaTitulo(); }); });
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool seVe) {
        protege([&] {
            seVe_ = seVe;
            alVerse();
        });
    });
}

void Panel::ponAtrasado(bool atrasado) {
    atrasado_ = atrasado;
    actualizaTitulo();
}

void Panel::ponTrabajando(bool trabajando) {
    trabajando_ = trabajando;
    if (!trabajando)
        espera_.stop();
    else if (!espera_.isActive())
        espera_.start();
    actualizaTitulo();
}

void Panel::actualizaTitulo() {
    const bool viejo = atrasado_ || (trabajando_ && !espera_.isActive());
    setWindowTitle(viejo ? titulo_ + QStringLiteral(" (anterior)") : titulo_);
}

void Panel::changeEvent(QEvent* evento) {
    QDockWidget::changeEvent(evento);
    if (evento->type() == QEvent::FontChange) protege([this] { alCambiarLetra(); });
}

} // namespace norvik::taller
