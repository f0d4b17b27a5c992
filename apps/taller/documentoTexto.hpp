// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/formatoTexto.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QObject>
#include <QString>

#include <string>
#include <string_view>

namespace norvik::taller {

/// The text of a control as a document of a person: its file, how the file has it, and what was last read
/// from there or written. An empty path is a text without a file.
class DocumentoTexto final : public QObject {
    Q_OBJECT

public:
    /// The control outlives it.
    explicit DocumentoTexto(ControlNorvik& norvik) : norvik_(norvik) {}

    const QString& fichero() const { return fichero_; }
    /// What a person calls it.
    QString titulo() const;
    /// It is another text than that which was saved or read.
    bool modificado() const;
    const FormatoTexto& formato() const { return formato_; }
    /// What was read was no text: written as one it would not be the same.
    bool esBinario() const { return esBinario_; }

    void vacia();
    /// A text without a file, which nobody would miss as it is.
    void empieza(std::u16string_view texto);
    /// What there is of it has gone where the person wants it: without a file it is as good as saved.
    void anotaEntregado();
    /// Raises `ErrorDeFichero`, the text is then empty and without a file. One that is too long to be
    /// coloured is loaded, and that is told.
    void abre(const QString& fichero);
    /// As it was read. Raises `ErrorDeFichero`.
    void guarda(const QString& fichero);

signals:
    /// Its file, or what is saved of it.
    void cambiado();
    /// What was done is not all that was asked for.
    void aviso(const QString& texto);

private:
    void pon(const QString& fichero, std::u16string_view texto);
    void anotaGuardado(std::u16string_view texto);

    ControlNorvik& norvik_;
    QString fichero_;
    FormatoTexto formato_;
    bool esBinario_ = false;
    std::u16string guardado_;
};

/// Saves a document; what is in the way is told, and false.
bool guardaOAvisa(DocumentoTexto& documento, const QString& fichero, SistemaQt& sistema);

} // namespace norvik::taller
