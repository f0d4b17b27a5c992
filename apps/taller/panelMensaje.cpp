// SPDX-License-Identifier: MIT

#include "panelMensaje.hpp"

#include "norvik/platform/qt/avisoALectores.hpp"

#include <QStyle>

namespace norvik::taller {

PanelMensaje::PanelMensaje(QWidget* padre) : QFrame(padre) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setAccessibleName(QStringLiteral("Error del análisis"));
    const int lado = style()->pixelMetric(QStyle::PM_SmallIconSize);
    signo_.setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(lado, lado));
    signo_.setAccessibleName(QStringLiteral("Aviso"));
    hazAviso(mensaje_);
    mensaje_.setWordWrap(true);
    mensaje_.setTextFormat(Qt::PlainText);
    mensaje_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    ir_.setText(QStringLiteral("&Ir al error"));
    cerrar_.setText(QStringLiteral("✕"));
    cerrar_.setAutoRaise(true);
    cerrar_.setToolTip(QStringLiteral("Cerrar"));
    cerrar_.setAccessibleName(QStringLiteral("Cerrar el mensaje"));
    fila_.setContentsMargins(6, 3, 3, 3);
    fila_.addWidget(&signo_, 0, Qt::AlignTop);
    fila_.addWidget(&mensaje_, 1);
    fila_.addWidget(&ir_, 0, Qt::AlignTop);
    fila_.addWidget(&cerrar_, 0, Qt::AlignTop);
    setLayout(&fila_);
    connect(&ir_, &QToolButton::clicked, this, &PanelMensaje::pideIr);
    connect(&cerrar_, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void PanelMensaje::muestra(const QString& error) {
    mensaje_.setText(error);
    if (error.isEmpty()) return hide();
    isHidden() ? apareceALectores(mensaje_, error, *this) : avisaALectores(mensaje_, error);
}

} // namespace norvik::taller
