// SPDX-License-Identifier: MIT

#include "norvik/platform/qt/ventanaEnUso.hpp"

#include <QApplication>
#include <QPointer>

namespace norvik {

QWidget* ventanaEnUso() {
    static QPointer<QWidget> anterior;
    if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* const activa = QApplication::activeWindow()) anterior = activa;
    return anterior && anterior->isVisible() ? anterior.data() : nullptr;
}

} // namespace norvik
