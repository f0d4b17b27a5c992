// SPDX-License-Identifier: MIT

#include "norvik/tools/iconos.hpp"

#include "norvik/platform/qt/nuevo.hpp"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace norvik {

namespace {

// Every picture is drawn in a square of 16 units with a fine pen.
constexpr int ladoDelIcono = 16;
constexpr double trazo = 1.15;

void hoja(QPainter& p) {
    p.drawPolygon(QPolygonF({{3, 1.5}, {9.5, 1.5}, {13, 5}, {13, 14.5}, {3, 14.5}}));
    p.drawPolyline(QPolygonF({{9.5, 1.5}, {9.5, 5}, {13, 5}}));
}

void carpeta(QPainter& p) {
    p.drawPolygon(QPolygonF({{1.5, 13}, {1.5, 3}, {6, 3}, {7.5, 5}, {14.5, 5}, {14.5, 13}}));
    p.drawLine(QPointF(1.5, 7.5), QPointF(14.5, 7.5));
}

void disquete(QPainter& p) {
    p.drawPolygon(QPolygonF({{2, 2}, {11.5, 2}, {14, 4.5}, {14, 14}, {2, 14}}));
    p.drawRect(QRectF(5, 2, 5, 3.5));
    p.drawRect(QRectF(4.5, 9, 7, 5));
}

void impresora(QPainter& p) {
    p.drawRect(QRectF(1.5, 6, 13, 5.5));
    p.drawPolyline(QPolygonF({{4, 6}, {4, 1.5}, {12, 1.5}, {12, 6}}));
    p.drawRect(QRectF(4, 9.5, 8, 5));
}

void vuelta(QPainter& p) {
    QPainterPath arco({3, 5.5});
    arco.cubicTo(9, 4, 14, 6, 13, 13.5);
    p.setBrush(Qt::NoBrush);
    p.drawPath(arco);
    p.drawPolyline(QPolygonF({{6.5, 2}, {2.5, 5.6}, {6.5, 9.2}}));
}

void otraVuelta(QPainter& p) {
    p.translate(ladoDelIcono, 0);
    p.scale(-1, 1);
    vuelta(p);
}

void lupa(QPainter& p) {
    p.drawEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
    p.setPen(QPen(p.pen().color(), 2.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(10.2, 10.2), QPointF(14, 14));
}

void punta(QPainter& p) {
    p.setBrush(p.pen().color());
    p.drawPolygon(QPolygonF({{4.5, 2.5}, {13, 8}, {4.5, 13.5}}));
}

void arbol(QPainter& p) {
    p.drawPolyline(QPolygonF({{3.5, 11}, {3.5, 8}, {12.5, 8}, {12.5, 11}}));
    p.drawLine(QPointF(8, 5), QPointF(8, 11));
    p.setBrush(p.pen().color());
    p.drawRect(QRectF(6.2, 1.8, 3.6, 3.2));
    for (const double x : {2.0, 6.5, 11.0}) p.drawEllipse(QRectF(x, 11, 3, 3));
}

void informe(QPainter& p) {
    p.drawRect(QRectF(2, 2, 12, 12));
    for (const double i : {6.0, 10.0}) p.drawLine(QPointF(2, i), QPointF(14, i));
    p.drawLine(QPointF(6, 2), QPointF(6, 14));
}

void escuadra(QPainter& p) {
    p.drawPolygon(QPolygonF({{2, 1.5}, {2, 14}, {14.5, 14}}));
    p.drawPolygon(QPolygonF({{5, 8}, {5, 11}, {8.2, 11}}));
}

void mandos(QPainter& p) {
    for (const auto& [y, x] : {std::pair(3.5, 10.5), std::pair(8.0, 5.5), std::pair(12.5, 9.0)}) {
        p.drawLine(QPointF(1.5, y), QPointF(14.5, y));
        p.save();
        p.setBrush(p.pen().color());
        p.drawEllipse(QPointF(x, y), 1.7, 1.7);
        p.restore();
    }
}

void pinta(Dibujo dibujo, QPainter& pintor) {
    switch (dibujo) {
    case Dibujo::Nuevo:
        return hoja(pintor);
    case Dibujo::Abrir:
        return carpeta(pintor);
    case Dibujo::Guardar:
        return disquete(pintor);
    case Dibujo::Imprimir:
        return impresora(pintor);
    case Dibujo::Deshacer:
        return vuelta(pintor);
    case Dibujo::Rehacer:
        return otraVuelta(pintor);
    case Dibujo::Buscar:
        return lupa(pintor);
    case Dibujo::Ejecutar:
        return punta(pintor);
    case Dibujo::Analizar:
        return arbol(pintor);
    case Dibujo::Informe:
        return informe(pintor);
    case Dibujo::Disenio:
        return escuadra(pintor);
    case Dibujo::Propiedades:
        return mandos(pintor);
    }
}

class Motor final : public QIconEngine {
public:
    explicit Motor(Dibujo dibujo) : dibujo_(dibujo) {}

    void paint(QPainter* pintor, const QRect& sitio, QIcon::Mode modo, QIcon::State /*estado*/) override {
        const auto grupo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QPalette paleta = QGuiApplication::palette();
        QColor fondo = paleta.color(grupo, QPalette::ButtonText);
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);
        pintor->translate(sitio.topLeft());
        pintor->scale(sitio.width() / double{ladoDelIcono}, sitio.height() / double{ladoDelIcono});
        pintor->setPen(QPen(fondo, trazo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        fondo.setAlpha(30);
        pintor->setBrush(fondo);
        pinta(dibujo_, *pintor);
        pintor->restore();
    }
    QPixmap pixmap(const QSize& medida, QIcon::Mode modo, QIcon::State estado) override {
        QPixmap mapa(medida);
        mapa.fill(Qt::transparent);
        QPainter pintor(&mapa);
        paint(&pintor, {QPoint(), medida}, modo, estado);
        return mapa;
    }
    QIconEngine* clone() const override { return &nuevo<Motor>(dibujo_); }

private:
    Dibujo dibujo_;
};

} // namespace

QIcon icono(Dibujo dibujo) {
    return QIcon(&nuevo<Motor>(dibujo)); // which owns it
}

} // namespace norvik
