// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QString>
#include <QWidget>

namespace norvik {

/// Gives a text box of Qt its menu in Spanish, whatever translations of Qt are installed.
template <typename Caja>
void ponMenuDeTexto(Caja& caja) {
    const auto pon = [&caja](const QString& nombre, auto orden) { caja.addAction(nombre, &caja, orden); };
    if (!caja.isReadOnly()) pon(QStringLiteral("Cor&tar"), [&caja] { caja.cut(); });
    pon(QStringLiteral("&Copiar"), [&caja] { caja.copy(); });
    if (!caja.isReadOnly()) pon(QStringLiteral("&Pegar"), [&caja] { caja.paste(); });
    pon(QStringLiteral("&Seleccionar todo"), [&caja] { caja.selectAll(); });
    caja.setContextMenuPolicy(Qt::ActionsContextMenu);
}

} // namespace norvik
