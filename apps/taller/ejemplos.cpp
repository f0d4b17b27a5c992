// SPDX-License-Identifier: MIT

#include "ejemplos.hpp"

#include <QDir>

namespace norvik::taller {

namespace {

/// The longest correct text that can still be read at a glance.
QString textoDe(const QDir& carpeta) {
    constexpr qint64 deUnVistazo = 4000;
    QString elegido;
    qint64 mayor = 0;
    for (const QFileInfo& fichero :
         QDir(carpeta.filePath(QStringLiteral("bien"))).entryInfoList(QDir::Files)) {
        if (fichero.size() > deUnVistazo || fichero.size() <= mayor) continue;
        mayor = fichero.size();
        elegido = fichero.absoluteFilePath();
    }
    return elegido;
}

} // namespace

QList<Ejemplo> ejemplosDe(const QString& carpeta) {
    QList<Ejemplo> ejemplos;
    if (carpeta.isEmpty()) return ejemplos;
    for (const QString& nombre : QDir(carpeta).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir suya(QDir(carpeta).filePath(nombre));
        const QString especificacion = suya.absoluteFilePath(nombre + QStringLiteral(".nvk"));
        if (QFileInfo::exists(especificacion)) ejemplos.append({nombre, especificacion, textoDe(suya)});
    }
    return ejemplos;
}

QString carpetaDeEjemplos(const QString& carpetaDelPrograma) {
    QDir carpeta(carpetaDelPrograma);
    do {
        for (const auto& sitio : {QStringLiteral("share/norvik/ejemplos"), QStringLiteral("ejemplos")}) {
            if (!ejemplosDe(carpeta.filePath(sitio)).isEmpty()) return carpeta.absoluteFilePath(sitio);
        }
    } while (carpeta.cdUp());
    return {};
}

} // namespace norvik::taller
