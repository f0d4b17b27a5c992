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

} // namespace norvik::taller
