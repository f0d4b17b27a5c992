// SPDX-License-Identifier: MIT

#include "plantillas.hpp"

#include "lenguaje.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/texto.hpp"

#include <QFile>

namespace norvik::taller {

namespace {

std::u16string recurso(const QString& nombre) {
    QFile fichero(QStringLiteral(":/taller/plantillas/") + nombre);
    if (!fichero.open(QIODevice::ReadOnly)) return {};
    return normalizaLineas(decodifica(fichero.readAll().toStdString()));
}

} // namespace

std::u16string Plantilla::especificacion() const {
    if (*fichero == '\0') return std::u16string(plantilla);
    return recurso(QLatin1String(fichero) + QStringLiteral(".nvk"));
}

std::u16string Plantilla::texto() const {
    return *fichero == '\0' ? std::u16string() : recurso(QLatin1String(fichero) + QStringLiteral(".txt"));
}

} // namespace norvik::taller
