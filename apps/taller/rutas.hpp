// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace norvik::taller {

// Endings and filters of the files that the workbench opens and saves.
inline const QString extensionFormulario = QStringLiteral("nvf");
inline const QString extensionEspecificacion = QStringLiteral("nvk");
inline const QString todos = QStringLiteral("Todos los ficheros (*)");
inline const QString filtroFormulario = QStringLiteral("Formularios de Norvik (*.nvf);;") + todos;
inline const QString filtroEspecificacion = QStringLiteral("Especificaciones (*.nvk);;") + todos;
inline const QString filtroLenguaje =
    QStringLiteral("Lenguajes (*.nvk *.bas);;Especificaciones (*.nvk);;Módulos de carga (*.bas);;") + todos;

} // namespace norvik::taller
