// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/bolsaPropiedades.hpp"

#include <QByteArray>
#include <QDir>
#include <QJsonObject>
#include <QString>

#include <vector>

namespace norvik::taller {

inline constexpr qsizetype maximoControles = 100;

/// What a form keeps of a control. Paths are absolute, empty ones are absent; the file has them relative to
/// itself, so that a folder can be moved. What nobody here knows is kept as it was read: it is of another
/// version.
struct ElementoGuardado {
    QString nombre;
    QString texto;
    QString modulo;
    BolsaPropiedades bolsa;
    QJsonObject otros;
    QJsonObject otrosDeBolsa;
};

struct FormularioGuardado {
    std::vector<ElementoGuardado> elementos; ///< one at least
    QJsonObject otros;
};

/// As its file has it, with paths relative to a folder where they lead there. Raises `ErrorDeFichero` for a
/// text that no file can hold.
QByteArray enJson(const FormularioGuardado& formulario, const QDir& carpeta);
/// Raises `NoCoincidenLosTipos`, with the place, for what is no form.
FormularioGuardado formularioDeJson(const QByteArray& json, const QDir& carpeta);

/// Raises `ErrorDeFichero`, and `NoCoincidenLosTipos`, with the place, for a file that is no form.
FormularioGuardado leeFormulario(const QString& fichero);

} // namespace norvik::taller
