// SPDX-License-Identifier: MIT

#include "documentos.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QFileInfo>

#include <optional>
#include <sys/stat.h>

namespace norvik::taller {

void exigeFicheroCorriente(const QString& fichero, std::u16string_view accion) {
    std::error_code desconocido; // reading or writing tells
    const auto estado = std::filesystem::status(aRuta(fichero), desconocido);
    if (!std::filesystem::is_other(estado)) return;
    throw ErrorDeFichero(u"No se puede " + std::u16string(accion) + u" «" + fichero.toStdU16String() +
                         u"»: no es un fichero corriente");
}

std::string leeDocumento(const QString& fichero) {
    exigeFicheroCorriente(fichero, u"leer");
    return leeBytes(aRuta(fichero));
}

void escribeDocumento(const QString& fichero, std::string_view bytes) {
    exigeFicheroCorriente(fichero, u"escribir");
    escribeBytes(aRuta(fichero), bytes, Durabilidad::EnDisco);
}

QString huellaDe(const QString& fichero) {
    struct stat estado {};
    if (stat(aRuta(fichero).c_str(), &estado) != 0) return {};
    return QStringLiteral("%1:%2:%3:%4.%5")
        .arg(estado.st_dev)
        .arg(estado.st_ino)
        .arg(estado.st_size)
        .arg(estado.st_mtim.tv_sec)
        .arg(estado.st_mtim.tv_nsec);
}

// ---- the file of a document

namespace {

std::optional<std::string> loQueHay(const QString& fichero) {
    try {
        return leeDocumento(fichero);
    } catch (const ErrorDeFichero&) {
        return std::nullopt;
    }
}

} // namespace

void FicheroConocido::pon(const QString& fichero, const QString& huella) {
    ruta_ = fichero.isEmpty() ? fichero : QFileInfo(fichero).absoluteFilePath();
    huella_ = huella;
}

bool FicheroConocido::esElMismo() const {
    const QString huella = huellaDe(ruta_);
    return !huella.isEmpty() && huella == huella_;
}

bool FicheroConocido::otroLoCambio() const {
    const QString huella = huellaDe(ruta_);
    return !huella.isEmpty() && huella != huella_;
}

void FicheroConocido::escribe(const QString& fichero, std::string_view bytes) {
    const bool esSuyo = QFileInfo(fichero).absoluteFilePath() == ruta_ && esElMismo();
    const std::optional<std::string> antes = esSuyo ? loQueHay(ruta_) : std::nullopt;
    try {
        escribeDocumento(fichero, bytes);
    } catch (const ErrorDeFichero&) {
        const QString huella = huellaDe(ruta_); // of what is read next, or of what was there before
        const std::optional<std::string> hay = esSuyo ? loQueHay(ruta_) : std::nullopt;
        if (hay && (hay == antes || *hay == bytes)) huella_ = huella;
        throw;
    }
    pon(fichero, huellaDe(fichero));
}

} // namespace norvik::taller
