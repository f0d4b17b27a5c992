// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

class QMimeData;

namespace norvik::taller {

/// What the name of a file says it is.
enum class ClaseFichero : std::uint8_t { Formulario, Especificacion, Modulo, Texto };
ClaseFichero claseDe(const QString& fichero);
/// The files that are dropped.
QStringList ficherosDe(const QMimeData& datos);

} // namespace norvik::taller
