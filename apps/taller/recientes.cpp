// SPDX-License-Identifier: MIT

#include "recientes.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace norvik::taller {

Recientes::Recientes(QMenu& menu, QSettings& ajustes, QString clave)
    : menu_(menu), ajustes_(ajustes), clave_(std::move(clave)) {
    menu_.setToolTipsVisible(true);
    connect(&menu_, &QMenu::aboutToShow, this, [this] { sinFallos([this] { llenaMenu(); }); });
}

QStringList Recientes::ficheros() const {
    return ajustes_.value(clave_).toStringList();
}

void Recientes::anota(const QString& fichero) {
    constexpr qsizetype cuantos = 9;
    const QString absoluto = QFileInfo(fichero).absoluteFilePath();
    QStringList lista = ficheros();
    lista.removeAll(absoluto);
    lista.prepend(absoluto);
    ajustes_.setValue(clave_, lista.first(std::min(cuantos, lista.size())));
}

void Recientes::llenaMenu() {
    menu_.clear();
    int numero = 1;
    for (const QString& fichero : ficheros()) {
        QString nombre = QFileInfo(fichero).fileName();
        nombre.replace(u'&', QLatin1String("&&"));
        QAction* const accion = menu_.addAction(QStringLiteral("&%1 %2").arg(numero++).arg(nombre), this,
                                                [this, fichero] { emit elegido(fichero); });
        accion->setToolTip(ayudaLlana(fichero));
        accion->setEnabled(QFileInfo::exists(fichero));
    }
    if (menu_.isEmpty()) menu_.addAction(QStringLiteral("(ninguno)"))->setEnabled(false);
}

} // namespace norvik::taller
