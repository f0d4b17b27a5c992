// SPDX-License-Identifier: MIT

#pragma once

#include "dialogos.hpp"
#include "documentoTexto.hpp"

namespace norvik::taller {

/// How a person is asked for the file of a document.
struct ComoSeGuarda {
    QString deQue; ///< in a question for its changes, before its name
    QString titulo;
    QString filtros;
    QString extension; ///< of what has none; empty when any will do
    QString propuesto; ///< for a document without a file
};

/// What became of a document that was to be saved.
enum class Archivado : std::uint8_t {
    No, ///< why was told, or a person did not want it
    Si,
    Recargado, ///< a person preferred what another program had written
};

/// Saves the documents of the windows, and asks for what would be lost: what was typed here, and what another
/// program wrote into the file meanwhile.
class Archivador {
public:
    Archivador(SistemaQt& sistema, Dialogos& dialogos) : sistema_(sistema), dialogos_(dialogos) {}

    /// Writes nothing when the file has it already.
    Archivado guarda(DocumentoTexto& documento, const ComoSeGuarda& como) const;
    Archivado guardaComo(DocumentoTexto& documento, const ComoSeGuarda& como) const;
    /// The document is saved, or was not changed, or is given up.
    bool puedePerder(DocumentoTexto& documento, const ComoSeGuarda& como) const;

private:
    Archivado escribe(DocumentoTexto& documento, const QString& fichero, const ComoSeGuarda& como) const;
    Archivado sobrescribe(DocumentoTexto& documento, const QString& fichero) const;

    SistemaQt& sistema_;
    Dialogos& dialogos_;
};

/// What a person is asked when a file is no longer what was read from it.
QString preguntaDeChoque(const QString& fichero);

} // namespace norvik::taller
