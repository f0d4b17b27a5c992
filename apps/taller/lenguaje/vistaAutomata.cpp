// SPDX-License-Identifier: MIT

#include "vistaAutomata.hpp"

namespace norvik::taller {

VistaAutomata::VistaAutomata(QWidget* padre)
    : VistaDibujo(QStringLiteral("Dibujo del autómata"),
                  QStringLiteral("La lista de estados y el texto del estado dicen lo mismo"), padre) {}

void VistaAutomata::muestra(const DibujoAutomata& dibujo, const RealceAutomata& realce) {
    dibujo_ = dibujo;
    realce_ = realce;
    VistaDibujo::muestra([this](const QPalette& colores, QGraphicsScene& escena) {
        pinta(dibujo_, colores, realce_, escena);
    });
    if (dibuja(realce.estado)) ensureVisible(dibujo_.caja(realce.estado));
}

void VistaAutomata::vacia() {
    dibujo_ = {};
    VistaDibujo::vacia();
}

void VistaAutomata::elige(const RealceAutomata& realce) {
    if (!dibuja(realce.estado) || realce_ == realce) return;
    realce_ = realce;
    repinta();
    ensureVisible(dibujo_.caja(realce.estado));
}

} // namespace norvik::taller
