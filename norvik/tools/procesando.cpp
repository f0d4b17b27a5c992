// SPDX-License-Identifier: MIT

#include "norvik/tools/procesando.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QLabel>
#include <QVBoxLayout>

namespace norvik {

Procesando::Procesando(QWidget* sobre)
    : QFrame(sobre, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
    nombra(*this, "Procesando", QStringLiteral("Procesando ..."));
    setWindowTitle(QStringLiteral("Procesando ..."));
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto& textos = nuevo<QVBoxLayout>(this);
    const int margen = fontMetrics().height() * 2;
    textos.setContentsMargins(margen, margen / 2, margen, margen / 2);
    auto& titulo = nuevo<QLabel>(QStringLiteral("Procesando ..."), this);
    QFont letra = titulo.font();
    letra.setBold(true);
    titulo.setFont(letra);
    textos.addWidget(&titulo, 0, Qt::AlignCenter);
    textos.addWidget(&nuevo<QLabel>(QStringLiteral("Espere, por favor."), this), 0, Qt::AlignCenter);
    adjustSize();
    if (sobre != nullptr) centra(*this, *sobre);
    show();
}

} // namespace norvik
