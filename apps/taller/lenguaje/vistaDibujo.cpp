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

namespace {

constexpr double legible = 0.6; // smaller letters nobody reads

} // namespace

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
    if (pinta_) centro_ = centro();
    pinta_ = std::move(pinta);
    repinta();
    if (std::exchange(porEncajar_, false))
        encaja(legible);
    else
        centerOn(centro_);
}

void VistaDibujo::vacia() {
    if (pinta_) centro_ = centro();
    pinta_ = nullptr;
    repinta();
}

void VistaDibujo::empiezaDeNuevo() {
    porEncajar_ = true;
    comoEncaja_ = true;
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

void VistaDibujo::encaja(double minimo) {
    comoEncaja_ = minimo > 0; // what a person asked for stays
    resetTransform();
    // With or without scroll bars, which come and go with the size; what rounds up needs none.
    const QSizeF sitio = maximumViewportSize() - QSize(4, 4);
    const QSizeF medida = escena_.sceneRect().size();
    if (medida.isEmpty() || sitio.isEmpty()) return;
    const double cabe = std::min(sitio.width() / medida.width(), sitio.height() / medida.height());
    if (const double escala = std::max(cabe, minimo); escala < 1) scale(escala, escala);
}

/// A large drawing that fits may be smaller than anyone makes it step by step.
void VistaDibujo::aumenta(double veces) {
    comoEncaja_ = false;
    const double ahora = transform().m11() * veces;
    if (veces > 1 ? ahora < 20 : ahora > 0.05) scale(veces, veces);
}

/// Views are filled before they have their place in a window.
void VistaDibujo::resizeEvent(QResizeEvent* evento) {
    QGraphicsView::resizeEvent(evento);
    if (pinta_ && comoEncaja_) sinFallos([this] { encaja(legible); });
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
    if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::FontChange)
        sinFallos([&] { repinta(); });
}

} // namespace norvik::taller
