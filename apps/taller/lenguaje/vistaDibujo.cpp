// SPDX-License-Identifier: MIT

#include "vistaDibujo.hpp"

#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/nombra.hpp"

#include <QEvent>
#include <QGraphicsItem>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace norvik::taller {

VistaDibujo::VistaDibujo(const QString& nombre, const QString& paraLectores, QWidget* padre)
    : QGraphicsView(padre) {
    setObjectName(QStringLiteral("dibujo"));
    setAccessibleName(nombre);
    setAccessibleDescription(paraLectores);
    setScene(&escena_);
    setRenderHint(QPainter::Antialiasing);
    setDragMode(QGraphicsView::ScrollHandDrag);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
}

void VistaDibujo::muestra(Lamina::Pinta pinta) {
    pinta_ = std::move(pinta);
    repinta();
    encaja();
}

void VistaDibujo::vacia() {
    pinta_ = nullptr;
    repinta();
}

void VistaDibujo::repinta() {
    escena_.clear();
    numeros_.clear();
    if (!pinta_) return;
    pinta_(palette(), escena_);
    ajustaEscena(escena_);
    for (const QGraphicsItem* const pieza : escena_.items())
        if (pieza->data(0).isValid()) numeros_.insert(pieza->data(0).toInt());
}

void VistaDibujo::acerca(int numero) {
    for (const QGraphicsItem* const pieza : escena_.items())
        if (pieza->data(0).isValid() && pieza->data(0).toInt() == numero) return ensureVisible(pieza);
}

void VistaDibujo::encaja() {
    resetTransform();
    const QSizeF sitio = viewport()->size();
    const QSizeF medida = escena_.sceneRect().size();
    constexpr double legible = 0.6; // smaller letters nobody reads
    const double escala = std::min(sitio.width() / medida.width(), sitio.height() / medida.height());
    if (escala < 1) scale(std::max(escala, legible), std::max(escala, legible));
}

void VistaDibujo::aumenta(double veces) {
    const double ahora = transform().m11() * veces;
    if (ahora > 0.05 && ahora < 20) scale(veces, veces);
}

void VistaDibujo::wheelEvent(QWheelEvent* evento) {
    if (!evento->modifiers().testFlag(Qt::ControlModifier)) return QGraphicsView::wheelEvent(evento);
    if (const int giro = evento->angleDelta().y(); giro != 0) aumenta(giro > 0 ? 1.25 : 0.8);
    evento->accept();
}

void VistaDibujo::mousePressEvent(QMouseEvent* evento) {
    QGraphicsView::mousePressEvent(evento);
    const QGraphicsItem* const pieza = itemAt(evento->position().toPoint());
    if (pieza == nullptr || !pieza->data(0).isValid()) return;
    const int numero = pieza->data(0).toInt(); // the piece does not outlive what comes of it
    sinFallos([&] { emit elegido(numero); });
}

void VistaDibujo::changeEvent(QEvent* evento) {
    QGraphicsView::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange) sinFallos([&] { repinta(); });
}

} // namespace norvik::taller
