// SPDX-License-Identifier: MIT

#include "norvik/widget/zoom.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"

#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>

namespace norvik {

Zoom::Zoom(CajaTextoQt& caja) : caja_(caja) {
    caja_.vista().installEventFilter(this);
    caja_.vista().viewport()->installEventFilter(this);
}

void Zoom::pon(int aumento) {
    constexpr int menor = 30;
    constexpr int mayor = 500;
    const int nuevo = std::clamp(aumento, menor, mayor);
    if (nuevo == aumento_) return;
    aumento_ = nuevo;
    caja_.ponAumento(static_cast<double>(nuevo) / normal);
}

bool Zoom::eventFilter(QObject* vista, QEvent* evento) {
    const bool hecho =
        permitido_ && ((evento->type() == QEvent::Wheel && rueda(static_cast<const QWheelEvent&>(*evento))) ||
                       (evento->type() == QEvent::KeyPress && tecla(static_cast<const QKeyEvent&>(*evento))));
    return hecho || QObject::eventFilter(vista, evento);
}

/// A fine wheel, or a finger, turns by less than a step at a time.
bool Zoom::rueda(const QWheelEvent& evento) {
    if (evento.modifiers() != Qt::ControlModifier) return false;
    giro_ += evento.angleDelta().y();
    const int pasos = giro_ / QWheelEvent::DefaultDeltasPerStep;
    giro_ -= pasos * QWheelEvent::DefaultDeltasPerStep;
    pon(aumento_ + pasos * paso);
    return true;
}

/// The plus sign may need the shift key.
bool Zoom::tecla(const QKeyEvent& evento) {
    const auto teclas = evento.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (teclas != Qt::ControlModifier) return false;
    switch (evento.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return amplia(), true;
    case Qt::Key_Minus:
        return reduce(), true;
    case Qt::Key_0:
        return pon(normal), true;
    default:
        return false;
    }
}

} // namespace norvik
