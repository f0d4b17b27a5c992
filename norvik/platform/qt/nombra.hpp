// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QString>
#include <QWidget>

namespace norvik {

/// Names an element, and says to screen readers what it is.
inline void nombra(QWidget& elemento, const char* nombre, const QString& accesible) {
    elemento.setObjectName(QLatin1String(nombre));
    elemento.setAccessibleName(accesible);
}

} // namespace norvik
