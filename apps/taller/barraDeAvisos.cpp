// SPDX-License-Identifier: MIT

#include "barraDeAvisos.hpp"

#include "norvik/platform/qt/avisoALectores.hpp"

namespace norvik::taller {

/// A name of its own would be read in the place of the message.
BarraDeAvisos::BarraDeAvisos(QWidget* padre) : QStatusBar(padre) {
    hazAviso(*this);
    const QString nombre = QStringLiteral("Barra de estado");
    setAccessibleName(nombre);
    connect(this, &QStatusBar::messageChanged, this, [this, nombre](const QString& texto) {
        if (texto.isEmpty()) setAccessibleName(nombre);
    });
}

void BarraDeAvisos::avisa(const QString& texto, int milisegundos) {
    showMessage(texto, milisegundos);
    avisaALectores(*this, texto);
}

} // namespace norvik::taller
