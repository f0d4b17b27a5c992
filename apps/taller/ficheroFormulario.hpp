// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/bolsaPropiedades.hpp"

#include <QString>

#include <vector>

namespace norvik::taller {

/// What a form keeps of a control. Paths are absolute, empty ones are absent; the file has them relative to
/// itself, so that a folder can be moved.
struct ElementoGuardado {
    QString nombre;
    QString texto;
    QString modulo;
    BolsaPropiedades bolsa;
};

/// At least one. Raises `ErrorDeFichero`, and `NoCoincidenLosTipos` for a file that is no form.
std::vector<ElementoGuardado> leeFormulario(const QString& fichero);
/// Writes the file whole and on the disk, or raises `ErrorDeFichero`.
void escribeFormulario(const QString& fichero, const std::vector<ElementoGuardado>& elementos);

} // namespace norvik::taller
