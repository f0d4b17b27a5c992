// SPDX-License-Identifier: MIT

#include "dibujoNorvik.hpp"

#include <QPainter>
#include <QPixmap>

namespace norvik::disenador {

namespace {

// In a square of 24 units.
constexpr double lado = 24;

void pinta(QPainter& p) {
    const QColor tinta(0x4A, 0x55, 0x60);
    p.setPen(QPen(tinta, 1));
    p.setBrush(QColor(0xFD, 0xFD, 0xF8));
    p.drawRect(QRectF(1.5, 1.5, 21, 21));
    p.fillRect(QRectF(2, 2, 4.5, 20), QColor(0xDF, 0xE3, 0xE6));
    p.drawLine(QPointF(6.5, 2), QPointF(6.5, 22));
    p.drawPolyline(QPolygonF({{9.5, 12}, {9.5, 9.5}, {19.5, 9.5}, {19.5, 12}}));
    p.drawLine(QPointF(14.5, 6), QPointF(14.5, 12));
    p.setPen(Qt::NoPen);
    const auto trozo = [&p](const QRectF& sitio, QRgb color) {
        p.setBrush(QColor(color));
        p.drawRoundedRect(sitio, 1, 1);
    };
    trozo({12, 3.5, 5, 3.5}, 0x000080);
    for (const double x : {8.0, 13.0, 18.0}) trozo({x, 11.5, 3, 3}, x == 13.0 ? 0x800000 : 0x008080);
    trozo({8, 16.5, 4, 1.8}, 0x000080);
    trozo({13.5, 16.5, 7, 1.8}, 0x008080);
    trozo({8, 19.5, 9, 1.8}, 0x008000);
    trozo({2.9, 16, 2.7, 2.7}, 0xC82424);
}

} // namespace

QIcon dibujoNorvik() {
    QIcon icono;
    for (const int medida : {16, 22, 24, 32, 48, 64}) {
        QPixmap mapa(medida, medida);
        mapa.fill(Qt::transparent);
        QPainter pintor(&mapa);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.scale(medida / lado, medida / lado);
        pinta(pintor);
        icono.addPixmap(mapa);
    }
    return icono;
}

} // namespace norvik::disenador
