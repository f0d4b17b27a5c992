// SPDX-License-Identifier: MIT

#include "veloDisenio.hpp"

#include <QKeyEvent>
#include <QPainter>

namespace norvik::taller {

namespace {

constexpr int paso = 12;   // of the dotted grid
constexpr int asidero = 7; // side of a handle

/// The places of the eight handles round a rectangle.
QList<QPoint> asideros(const QRect& marco) {
    QList<QPoint> puntos;
    for (const int x : {marco.left(), marco.center().x(), marco.right()})
        for (const int y : {marco.top(), marco.center().y(), marco.bottom()})
            if (QPoint(x, y) != marco.center()) puntos.append({x, y});
    return puntos;
}

} // namespace

VeloDisenio::VeloDisenio(QWidget* padre) : QWidget(padre) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::ArrowCursor);
    setToolTip(QStringLiteral("Doble clic o Intro: propiedades"));
}

void VeloDisenio::ponSeleccionado(bool seleccionado) {
    seleccionado_ = seleccionado;
    update();
}

void VeloDisenio::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pintor(this);
    QColor punto = palette().color(QPalette::Text);
    punto.setAlpha(70);
    pintor.setPen(punto);
    for (int x = paso; x < width(); x += paso)
        for (int y = paso; y < height(); y += paso) pintor.drawPoint(x, y);
    if (!seleccionado_) return;
    const QColor color = palette().color(QPalette::Highlight);
    const QRect marco = rect().adjusted(asidero / 2, asidero / 2, -asidero / 2 - 1, -asidero / 2 - 1);
    pintor.setPen(color);
    pintor.drawRect(marco);
    for (const QPoint& p : asideros(marco))
        pintor.fillRect(p.x() - asidero / 2, p.y() - asidero / 2, asidero, asidero, color);
}

void VeloDisenio::mousePressEvent(QMouseEvent* /*evento*/) {
    emit seleccionado();
}

void VeloDisenio::mouseDoubleClickEvent(QMouseEvent* /*evento*/) {
    emit pidePropiedades();
}

void VeloDisenio::keyPressEvent(QKeyEvent* evento) {
    const bool entra = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (!entra) return QWidget::keyPressEvent(evento);
    emit pidePropiedades();
}

void VeloDisenio::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    emit seleccionado();
}

} // namespace norvik::taller
