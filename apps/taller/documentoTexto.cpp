// SPDX-License-Identifier: MIT

#include "documentoTexto.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/tools/procesando.hpp"

#include <QFileInfo>

#include <utility>

namespace norvik::taller {

QString DocumentoTexto::titulo() const {
    return fichero().isEmpty() ? QStringLiteral("Sin título") : QFileInfo(fichero()).fileName();
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

void DocumentoTexto::vacia() {
    formato_ = {};
    esBinario_ = false;
    fichero_.olvida();
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
    norvik_.caja().protege([this] { coloreaConAviso(norvik_); });
}

void DocumentoTexto::anotaEntregado() {
    if (fichero().isEmpty()) anotaGuardado(std::u16string(norvik_.caja().texto()));
}

/// The path may be the document's own, which is about to be forgotten.
void DocumentoTexto::abre(const QString& fichero) {
    const QString ruta = QFileInfo(fichero).absoluteFilePath();
    const QString huella = huellaDe(ruta); // of what is read next, or of what was there before
    const std::string bytes = leeDocumento(fichero);
    vacia();
    carga(ruta);
    formato_ = formatoDe(bytes);
    esBinario_ = norvik::esBinario(bytes);
    fichero_.pon(ruta, huella);
    const std::u16string leido = decodifica(bytes);
    anotaGuardado(normalizaLineas(leido));
    if (!esBinario_ && mezclaSaltos(leido))
        emit aviso(QStringLiteral("Mezcla finales de línea: guardado, todos serán ") +
                   aQString(nombreDe(formato_.salto)));
}

/// A text is there, too, when its colours are not: that it is too long for them, or takes too long, is told
/// as at any key.
void DocumentoTexto::carga(const QString& ruta) {
    try {
        const VentanaDeAmbito<Procesando> aviso(norvik_.sistema(), norvik_.window(),
                                                Procesando::Aparece::SiTarda);
        norvik_.control().CargarFichero(aRuta(ruta));
    } catch (const OperacionCancelada&) {
        return;
    } catch (const ErrorDeFichero&) {
        throw;
    } catch (const ErrorNorvik&) {
        norvik_.caja().protege([] { throw; });
    }
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
    fichero_.escribe(fichero, codificado.bytes);
    if (std::exchange(formato_, codificado.formato) != codificado.formato)
        emit aviso(QStringLiteral("Hay caracteres que no caben en Windows-1252: guardado en UTF-8"));
    anotaGuardado(texto);
}

EstadoDocumento DocumentoTexto::estado() const {
    return {fichero_.ruta(), fichero_.huella(), formato_,
            esBinario_,      modificado(),      std::u16string(norvik_.caja().texto())};
}

void DocumentoTexto::repone(const EstadoDocumento& estado) {
    empieza(estado.texto);
    fichero_.pon(estado.fichero, estado.huella);
    formato_ = estado.formato;
    esBinario_ = estado.esBinario;
    if (estado.modificado) guardado_.reset();
    emit cambiado();
}

} // namespace norvik::taller
