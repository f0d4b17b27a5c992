// SPDX-License-Identifier: MIT

#include "documentoTexto.hpp"

#include "documentos.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"

#include <QFileInfo>

#include <utility>

namespace norvik::taller {

QString DocumentoTexto::titulo() const {
    return fichero_.isEmpty() ? QStringLiteral("Sin título") : QFileInfo(fichero_).fileName();
}

bool DocumentoTexto::modificado() const {
    return norvik_.TextoModificado() && norvik_.caja().texto() != guardado_;
}

void DocumentoTexto::vacia() {
    formato_ = {};
    esBinario_ = false;
    fichero_.clear();
    try {
        norvik_.control().BorraTodo();
    } catch (const Desbordamiento&) { // there were more changes than it counts, and none is left
        norvik_.TextoModificado(false);
    }
    anotaGuardado({});
}

void DocumentoTexto::empieza(std::u16string_view texto) {
    vacia();
    norvik_.caja().protege([&] { norvik_.control().Text(texto); });
    norvik_.caja().protege([this] { norvik_.control().ColoreaTodo(); });
    anotaGuardado(std::u16string(norvik_.caja().texto()));
}

void DocumentoTexto::anotaEntregado() {
    if (fichero_.isEmpty()) anotaGuardado(std::u16string(norvik_.caja().texto()));
}

void DocumentoTexto::abre(const QString& fichero) {
    exigeFicheroCorriente(fichero, u"leer");
    vacia();
    const std::string bytes = leeBytes(aRuta(fichero));
    try {
        norvik_.control().CargarFichero(aRuta(fichero));
    } catch (const Desbordamiento&) {
        norvik_.caja().protege([] { throw; }); // it is told as at any key
    }
    formato_ = formatoDe(bytes);
    esBinario_ = norvik::esBinario(bytes);
    pon(fichero, normalizaLineas(decodifica(bytes)));
}

void DocumentoTexto::pon(const QString& fichero, std::u16string_view texto) {
    fichero_ = QFileInfo(fichero).absoluteFilePath();
    anotaGuardado(texto);
}

/// What colouring corrected in a text that was read is not yet in its file.
void DocumentoTexto::anotaGuardado(std::u16string_view texto) {
    guardado_ = texto;
    if (norvik_.caja().texto() == guardado_) norvik_.TextoModificado(false);
    emit cambiado();
}

void DocumentoTexto::guarda(const QString& fichero) {
    const std::u16string_view texto = norvik_.caja().texto();
    const TextoCodificado codificado = codifica(texto, formato_);
    escribeDocumento(fichero, codificado.bytes);
    if (std::exchange(formato_, codificado.formato) != codificado.formato)
        emit aviso(QStringLiteral("Hay caracteres que no caben en Windows-1252: guardado en UTF-8"));
    pon(fichero, texto);
}

bool guardaOAvisa(DocumentoTexto& documento, const QString& fichero, SistemaQt& sistema) {
    std::u16string motivo;
    if (documento.esBinario())
        motivo = u"«" + documento.titulo().toStdU16String() +
                 u"» no se leyó como texto, y guardado como texto sería otro fichero.";
    try {
        if (motivo.empty()) documento.guarda(fichero);
    } catch (const ErrorDeFichero& error) {
        motivo = error.texto();
    }
    if (!motivo.empty()) sistema.muestraMensaje({motivo, {}, Icono::Critico, Botones::Aceptar});
    return motivo.empty();
}

} // namespace norvik::taller
