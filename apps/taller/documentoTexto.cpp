// SPDX-License-Identifier: MIT

#include "documentoTexto.hpp"

#include "documentos.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <QFileInfo>

#include <utility>

namespace norvik::taller {

QString DocumentoTexto::titulo() const {
    return fichero_.isEmpty() ? QStringLiteral("Sin título") : QFileInfo(fichero_).fileName();
}

bool DocumentoTexto::modificado() const {
    if (!guardado_) return true;
    return norvik_.TextoModificado() && norvik_.caja().texto() != *guardado_;
}

QString DocumentoTexto::nombreDelFormato() const {
    if (esBinario_) return QStringLiteral("No es texto");
    return aQString(nombreDe(formato_.codificacion)) + QStringLiteral("  ") +
           aQString(nombreDe(formato_.salto));
}

bool DocumentoTexto::alDia() const {
    const QString huella = huellaDe(fichero_);
    return !modificado() && !huella.isEmpty() && huella == huella_;
}

/// Where there is nothing any more nothing is lost.
bool DocumentoTexto::otroLoCambio() const {
    const QString huella = huellaDe(fichero_);
    return !huella.isEmpty() && huella != huella_;
}

void DocumentoTexto::vacia() {
    formato_ = {};
    esBinario_ = false;
    fichero_.clear();
    huella_.clear();
    try {
        norvik_.control().BorraTodo();
    } catch (const Desbordamiento&) { // there were more changes than it counts, and none is left
        norvik_.TextoModificado(false);
    }
    anotaGuardado({});
}

void DocumentoTexto::empieza(std::u16string_view texto) {
    vacia();
    ponTexto(texto);
    anotaGuardado(std::u16string(norvik_.caja().texto()));
}

void DocumentoTexto::ponTexto(std::u16string_view texto) {
    norvik_.caja().protege([&] { norvik_.control().Text(texto); });
    norvik_.caja().protege([this] { norvik_.control().ColoreaTodo(); });
}

void DocumentoTexto::anotaEntregado() {
    if (fichero_.isEmpty()) anotaGuardado(std::u16string(norvik_.caja().texto()));
}

/// The path may be the document's own, which is about to be forgotten.
void DocumentoTexto::abre(const QString& fichero) {
    const QString ruta = QFileInfo(fichero).absoluteFilePath();
    const QString huella = huellaDe(ruta); // of what is read next, or of what was there before
    const std::string bytes = leeDocumento(fichero);
    vacia();
    try {
        norvik_.control().CargarFichero(aRuta(ruta));
    } catch (const Desbordamiento&) {
        norvik_.caja().protege([] { throw; }); // it is told as at any key
    }
    formato_ = formatoDe(bytes);
    esBinario_ = norvik::esBinario(bytes);
    huella_ = huella;
    pon(ruta, normalizaLineas(decodifica(bytes)));
}

void DocumentoTexto::pon(const QString& fichero, std::u16string_view texto) {
    fichero_ = QFileInfo(fichero).absoluteFilePath();
    anotaGuardado(texto);
}

/// What colouring corrected in a text that was read is not yet in its file.
void DocumentoTexto::anotaGuardado(std::u16string_view texto) {
    guardado_ = std::u16string(texto);
    if (norvik_.caja().texto() == texto) norvik_.TextoModificado(false);
    emit cambiado();
}

void DocumentoTexto::guarda(const QString& fichero) {
    const std::u16string_view texto = norvik_.caja().texto();
    const TextoCodificado codificado = codifica(texto, formato_);
    escribeDocumento(fichero, codificado.bytes);
    huella_ = huellaDe(fichero);
    if (std::exchange(formato_, codificado.formato) != codificado.formato)
        emit aviso(QStringLiteral("Hay caracteres que no caben en Windows-1252: guardado en UTF-8"));
    pon(fichero, texto);
}

EstadoDocumento DocumentoTexto::estado() const {
    return {fichero_, huella_, formato_, esBinario_, modificado(), std::u16string(norvik_.caja().texto())};
}

void DocumentoTexto::repone(const EstadoDocumento& estado) {
    empieza(estado.texto);
    fichero_ = estado.fichero;
    huella_ = estado.huella;
    formato_ = estado.formato;
    esBinario_ = estado.esBinario;
    if (estado.modificado) guardado_.reset();
    emit cambiado();
}

} // namespace norvik::taller
