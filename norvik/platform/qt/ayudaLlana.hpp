// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace norvik {

/// A tooltip that is shown as it is written: Qt would take some of them for marks of a page.
inline QString ayudaLlana(const QString& texto) {
    if (texto.isEmpty()) return texto;
    QString lineas = texto.toHtmlEscaped();
    return QStringLiteral("<qt>%1</qt>").arg(lineas.replace(u'\n', QLatin1String("<br>")));
}

} // namespace norvik
