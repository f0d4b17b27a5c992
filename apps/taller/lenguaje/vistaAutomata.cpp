// SPDX-License-Identifier: MIT

#include "vistaAutomata.hpp"

#include "norvik/platform/qt/fallos.hpp"

#include <QEvent>
#include <QGraphicsItem>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

namespace norvik::taller {

VistaAutomata::VistaAutomata(QWidget* padre) : QGraphicsView(padre) {
    setObjectName(QStringLiteral("dibujo"));
    setAccessibleName(QStringLiteral("Dibujo del autómata"));
    setAccessibleDescription(QStringLiteral("La lista de estados y el texto del estado dicen lo mismo"));
    setScene(&escena_);
    setRenderHint(QPainter::Antialiasing);
    setDragMode(QGraphicsView::ScrollHandDrag);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
}

void VistaAutomata::muestra(const DibujoAutomata& dibujo, int elegido) {
    dibujo_ = dibujo;
    elegido_ = elegido;
    repinta();
    encaja();
    elige(elegido);
}

void VistaAutomata::vacia() {
    dibujo_ = {};
    escena_.clear();
}

void VistaAutomata::elige(int estado) {
    if (!dibuja(estado)) return;
    if (elegido_ != estado) {
        elegido_ = estado;
        repinta();
    }
    ensureVisible(dibujo_.caja(estado));
}

void VistaAutomata::repinta() {
    pinta(dibujo_, palette(), elegido_, escena_);
}

void VistaAutomata::encaja() {
    resetTransform();
    const QSizeF sitio = viewport()->size();
    const QSizeF medida = escena_.sceneRect().size();
    constexpr double legible = 0.6; // smaller letters nobody reads
    const double escala = std::min(sitio.width() / medida.width(), sitio.height() / medida.height());
    if (escala < 1) scale(std::max(escala, legible), std::max(escala, legible));
}

void VistaAutomata::aumenta(double veces) {
    const double ahora = transform().m11() * veces;
    if (ahora > 0.05 && ahora < 20) scale(veces, veces);
}

void VistaAutomata::wheelEvent(QWheelEvent* evento) {
    if (!evento->modifiers().testFlag(Qt::ControlModifier)) return QGraphicsView::wheelEvent(evento);
    if (const int giro = evento->angleDelta().y(); giro != 0) aumenta(giro > 0 ? 1.25 : 0.8);
    evento->accept();
}

void VistaAutomata::mousePressEvent(QMouseEvent* evento) {
    QGraphicsView::mousePressEvent(evento);
    const QGraphicsItem* const pieza = itemAt(evento->position().toPoint());
    if (pieza == nullptr || !pieza->data(0).isValid()) return;
    const int estado = pieza->data(0).toInt(); // the piece does not outlive what comes of it
    sinFallos([&] { emit elegido(estado); });
}

void VistaAutomata::changeEvent(QEvent* evento) {
    QGraphicsView::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange) sinFallos([&] { repinta(); });
}

} // namespace norvik::taller
