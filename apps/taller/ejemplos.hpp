// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

namespace norvik::taller {

/// A language that comes with the program, and a text of it.
struct Ejemplo {
    QString nombre;
    QString especificacion;
    QString texto; ///< empty when there is none
};

/// Those of a folder, by name; an empty list for a folder that is none.
QList<Ejemplo> ejemplosDe(const QString& carpeta);
/// The folder of the examples, from that of the program: installed, or in a source tree above it. Empty when
/// there is none.
QString carpetaDeEjemplos(const QString& carpetaDelPrograma);

} // namespace norvik::taller
