// SPDX-License-Identifier: MIT

#pragma once

#include "documentos.hpp"

#include "norvik/base/formatoTexto.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QObject>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace norvik::taller {

/// All that there is of a document, to be put back in another life of the program.
struct EstadoDocumento {
    QString fichero;
    QString huella; ///< of the file as it was last read or written
    FormatoTexto formato;
    bool esBinario = false;
    bool modificado = false;
    std::u16string texto;
};

/// The text of a control as a document of a person: its file, how the file has it, and what was last read
/// from there or written. An empty path is a text without a file.
class DocumentoTexto final : public QObject {
    Q_OBJECT

public:
    /// The control outlives it.
    explicit DocumentoTexto(ControlNorvik& norvik) : norvik_(norvik) {}

    const QString& fichero() const { return fichero_.ruta(); }
    /// What a person calls it.
    QString titulo() const;
    /// It is another text than that which was saved or read.
    bool modificado() const;
    const FormatoTexto& formato() const { return formato_; }
    /// What was read was no text: written as one it would not be the same.
    bool esBinario() const { return esBinario_; }
    /// Encoding and line ends of its file, as people call them.
    QString nombreDelFormato() const;
    /// Its file has what the control has, as far as is known: there is nothing to write.
    bool alDia() const { return !modificado() && fichero_.esElMismo(); }
    /// What stands in the place of its file is not what was read from there or written.
    bool otroLoCambio() const { return fichero_.otroLoCambio(); }

    void vacia();
    /// A text without a file, which nobody would miss as it is.
    void empieza(std::u16string_view texto);
    /// What there is of it has gone where the person wants it: without a file it is as good as saved.
    void anotaEntregado();
    /// Raises `ErrorDeFichero`, the document is then what it was. A text that cannot be coloured is loaded,
    /// and why is told; colouring that takes long can be cancelled.
    void abre(const QString& fichero);
    /// As it was read. Raises `ErrorDeFichero`.
    void guarda(const QString& fichero);

    EstadoDocumento estado() const;
    void repone(const EstadoDocumento& estado);

signals:
    /// Its file, or what is saved of it.
    void cambiado();
    /// What was done is not all that was asked for.
    void aviso(const QString& texto);

private:
    void ponTexto(std::u16string_view texto);
    void carga(const QString& ruta);
    void anotaGuardado(std::u16string_view texto);

    ControlNorvik& norvik_;
    FicheroConocido fichero_;
    FormatoTexto formato_;
    bool esBinario_ = false;
    std::optional<std::u16string> guardado_ = std::u16string(); ///< nothing: it is not known here
};

} // namespace norvik::taller
