// SPDX-License-Identifier: MIT

#include "claseFichero.hpp"

#include "rutas.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace norvik::taller {

ClaseFichero claseDe(const QString& fichero) {
    const QString extension = QFileInfo(fichero).suffix().toLower();
    if (extension == extensionFormulario) return ClaseFichero::Formulario;
    if (extension == extensionEspecificacion) return ClaseFichero::Especificacion;
    return esModulo(aRuta(fichero)) ? ClaseFichero::Modulo : ClaseFichero::Texto;
}

QStringList ficherosDe(const QMimeData& datos) {
    QStringList ficheros;
    for (const QUrl& url : datos.urls())
        if (url.isLocalFile()) ficheros += url.toLocalFile();
    return ficheros;
}

} // namespace norvik::taller
