// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>
#include <string_view>

// The files that a person opens and saves here: plain ones. A pipe or a device would make the window wait for
// whoever is at its other end. What fails is raised as `ErrorDeFichero`, with its cause.
namespace norvik::taller {

/// Raises for what is there and is neither a plain file nor a folder, which says itself what it is.
void exigeFicheroCorriente(const QString& fichero, std::u16string_view accion);

std::string leeDocumento(const QString& fichero);
/// Whole and on the disk, or not at all.
void escribeDocumento(const QString& fichero, std::string_view bytes);

/// Tells a file from what it becomes when anybody writes it, without reading it; empty where there is none.
QString huellaDe(const QString& fichero);

/// The file of a document, of which a fingerprint is kept. Without a path there is none.
class FicheroConocido {
public:
    const QString& ruta() const { return ruta_; }
    const QString& huella() const { return huella_; }
    void pon(const QString& fichero, const QString& huella);
    void olvida() { pon({}, {}); }
    /// What stands there is what was read or written here.
    bool esElMismo() const;
    /// What stands there is something else; where there is nothing any more nothing is lost.
    bool otroLoCambio() const;
    /// Writes a file, which from then on is this one. A write that fails may all the same have changed the
    /// file: it is none of another program's when it has what it had, or what it was to have.
    void escribe(const QString& fichero, std::string_view bytes);

private:
    QString ruta_; ///< absolute
    QString huella_;
};

} // namespace norvik::taller
