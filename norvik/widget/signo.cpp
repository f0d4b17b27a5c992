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
const QColor naranja(165, 95, 0);
const QColor azul(40, 100, 190);

/// What is done to a painter while it lives is undone.
class PintorGuardado {
public:
    explicit PintorGuardado(QPainter& pintor) : pintor_(pintor) { pintor_.save(); }
    PintorGuardado(const PintorGuardado&) = delete;
    PintorGuardado& operator=(const PintorGuardado&) = delete;
    ~PintorGuardado() { pintor_.restore(); }

private:
    QPainter& pintor_;
};

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

void dibujaAviso(QPainter& pintor) {
    pintor.setBrush(ambar);
    pintor.setPen(QPen(naranja, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.drawPolygon(QPolygonF({{8, 1.8}, {14.8, 14}, {1.2, 14}}));
    pintor.setPen(QPen(Qt::black, 1.6, Qt::SolidLine, Qt::RoundCap));
    pintor.drawLine(QPointF(8, 6.2), QPointF(8, 9.8));
    pintor.drawPoint(QPointF(8, 12));
}

void dibujaNota(QPainter& pintor) {
    pintor.setBrush(azul);
    pintor.drawEllipse(QPointF(8, 8), 6.5, 6.5);
    pintor.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap));
    pintor.drawPoint(QPointF(8, 4.8));
    pintor.drawLine(QPointF(8, 7.4), QPointF(8, 11.4));
}

} // namespace

Signo::Dibujo Signo::dibujoDe(Gravedad gravedad) {
    switch (gravedad) {
    case Gravedad::Error:
        return Dibujo::Error;
    case Gravedad::Aviso:
        return Dibujo::Aviso;
    case Gravedad::Nota:
        return Dibujo::Nota;
    }
    return Dibujo::Error;
}

QColor Signo::colorDe(Gravedad gravedad) {
    switch (gravedad) {
    case Gravedad::Error:
        return rojo;
    case Gravedad::Aviso:
        return naranja;
    case Gravedad::Nota:
        return azul;
    }
    return rojo;
}

Signo::Signo(Dibujo dibujo, QWidget* padre) : QWidget(padre), dibujo_(dibujo) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Signo::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pintor(this);
    pinta(pintor, dibujo_, rect());
}

void Signo::pinta(QPainter& pintor, Dibujo dibujo, const QRect& sitio) {
    const PintorGuardado guardado(pintor);
    pintor.setRenderHint(QPainter::Antialiasing);
    const double escala = static_cast<double>(std::min(sitio.width(), sitio.height())) / lado;
    pintor.translate(sitio.topLeft());
    pintor.scale(escala, escala);
    pintor.setPen(Qt::NoPen);
    switch (dibujo) {
    case Dibujo::Error:
        return dibujaError(pintor);
    case Dibujo::Stop:
        return dibujaStop(pintor);
    case Dibujo::Play:
        return dibujaPlay(pintor);
    case Dibujo::FlujoActual:
        return dibujaFlujo(pintor);
    case Dibujo::Aviso:
        return dibujaAviso(pintor);
    case Dibujo::Nota:
        return dibujaNota(pintor);
    }
}

} // namespace norvik
