// SPDX-License-Identifier: MIT

#include "archivador.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"

#include <QFileInfo>
#include <QLocale>

namespace norvik::taller {

Archivado Archivador::guarda(DocumentoTexto& documento, const ComoSeGuarda& como) const {
    if (documento.fichero().isEmpty()) return guardaComo(documento, como);
    return documento.alDia() ? Archivado::Si : escribe(documento, documento.fichero(), como);
}

Archivado Archivador::guardaComo(DocumentoTexto& documento, const ComoSeGuarda& como) const {
    const QString propuesto = documento.fichero().isEmpty() ? como.propuesto : documento.fichero();
    const auto fichero = dialogos_.eligeParaGuardar(como.titulo, como.filtros, propuesto, como.extension);
    return fichero ? escribe(documento, *fichero, como) : Archivado::No;
}

bool Archivador::puedePerder(DocumentoTexto& documento, const ComoSeGuarda& como) const {
    if (!documento.modificado()) return true;
    const QString pregunta =
        QStringLiteral("¿Quiere guardar los cambios %1«%2»?").arg(como.deQue, documento.titulo());
    return dialogos_.guardaOPierde(pregunta, [&] { return guarda(documento, como) != Archivado::No; });
}

Archivado Archivador::escribe(DocumentoTexto& documento, const QString& fichero,
                              const ComoSeGuarda& como) const {
    if (fichero != documento.fichero() || !documento.otroLoCambio()) return sobrescribe(documento, fichero);
    switch (dialogos_.preguntaChoque(preguntaDeChoque(fichero))) {
    case Choque::Sobrescribir:
        return sobrescribe(documento, fichero);
    case Choque::GuardarComo:
        return guardaComo(documento, como);
    case Choque::Recargar:
        documento.abre(fichero);
        return Archivado::Recargado;
    case Choque::Cancelar:
        return Archivado::No;
    }
    return Archivado::No;
}

Archivado Archivador::sobrescribe(DocumentoTexto& documento, const QString& fichero) const {
    std::u16string motivo;
    if (documento.esBinario())
        motivo = u"«" + documento.titulo().toStdU16String() +
                 u"» no se leyó como texto, y guardado como texto sería otro fichero.";
    try {
        if (motivo.empty()) documento.guarda(fichero);
    } catch (const ErrorDeFichero& error) {
        motivo = error.texto();
    }
    if (!motivo.empty()) sistema_.muestraMensaje({motivo, {}, Icono::Critico, Botones::Aceptar});
    return motivo.empty() ? Archivado::Si : Archivado::No;
}

QString preguntaDeChoque(const QString& fichero) {
    const QFileInfo info(fichero);
    return QStringLiteral("«%1» ha cambiado en el disco desde que se leyó o se guardó aquí: otro programa, u "
                          "otro taller, lo escribió el %2.\n\n"
                          "Si se sobrescribe, se pierde lo que hay en el disco; si se recarga, los cambios "
                          "hechos aquí.")
        .arg(info.fileName(),
             QLocale(QLocale::Spanish)
                 .toString(info.lastModified(), QStringLiteral("d 'de' MMMM 'a las' H:mm:ss")));
}

} // namespace norvik::taller
