// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

namespace norvik::taller {

/// What the name of a file says it is.
enum class ClaseFichero : std::uint8_t { Formulario, Especificacion, Modulo, Texto };
ClaseFichero claseDe(const QString& fichero);

} // namespace norvik::taller
