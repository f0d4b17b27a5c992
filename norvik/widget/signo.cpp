// SPDX-License-Identifier: MIT

#include "norvik/widget/signo.hpp"

#include <QPainter>

#include <algorithm>

namespace norvik {

namespace {

// Every picture is drawn in a square of 16 units.
constexpr int lado = 16;

const QColor rojo(200, 36, 36);
const QColor granate(150, 20, 50);
const QColor verde(30, 140, 60);
const QColor ambar(240, 180, 20);

void dibujaError(QPainter& pintor) {
    pintor.setBrush(rojo);
    pintor.drawEllipse(QPointF(8, 8), 6.5, 6.5);
    pintor.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap));
    pintor.drawLine(QPointF(5.6, 5.6), QPointF(10.4, 10.4));
    pintor.drawLine(QPointF(5.6, 10.4), QPointF(10.4, 5.6));
}

void dibujaStop(QPainter& pintor) {
    pintor.setBrush(granate);
    pintor.drawPolygon(
        QPolygonF({{5.5, 2}, {10.5, 2}, {14, 5.5}, {14, 10.5}, {10.5, 14}, {5.5, 14}, {2, 10.5}, {2, 5.5}}));
}

void dibujaPlay(QPainter& pintor) {
    pintor.setBrush(verde);
    pintor.drawPolygon(QPolygonF({{4, 2}, {14, 8}, {4, 14}}));
}

void dibujaFlujo(QPainter& pintor) {
    pintor.setBrush(ambar);
    pintor.setPen(QPen(ambar.darker(), 1));
    pintor.drawPolygon(QPolygonF({{1.5, 5.5}, {8, 5.5}, {8, 2}, {14.5, 8}, {8, 14}, {8, 10.5}, {1.5, 10.5}}));
}

} // namespace

Signo::Signo(Dibujo dibujo, QWidget* padre) : QWidget(padre), dibujo_(dibujo) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Signo::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const double escala = static_cast<double>(std::min(width(), height())) / lado;
    pintor.scale(escala, escala);
    pintor.setPen(Qt::NoPen);
    switch (dibujo_) {
    case Dibujo::Error:
        return dibujaError(pintor);
    case Dibujo::Stop:
        return dibujaStop(pintor);
    case Dibujo::Play:
        return dibujaPlay(pintor);
    case Dibujo::FlujoActual:
        return dibujaFlujo(pintor);
    }
}

} // namespace norvik
