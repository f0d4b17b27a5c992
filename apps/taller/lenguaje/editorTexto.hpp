// SPDX-License-Identifier: MIT

#pragma once

#include "../documentoTexto.hpp"

#include "norvik/widget/controlNorvik.hpp"

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

namespace norvik::taller {

/// One of the two editors of the language window: a control with all its aids, the document that it edits,
/// and a heading.
class EditorTexto final : public QWidget {
    Q_OBJECT

public:
    EditorTexto(const QString& nombre, SistemaQt& sistema, QWidget* padre);

    ControlNorvik& norvik() { return norvik_; }
    DocumentoTexto& documento() { return documento_; }
    const DocumentoTexto& documento() const { return documento_; }
    const QString& nombre() const { return nombre_; }
    std::u16string texto();
    /// What is chosen, or where the caret is.
    Rango seleccion();
    /// Selects a place and scrolls to it; the focus stays where it is.
    void muestra(const Rango& rango);

signals:
    void otroTexto();
    void otroLugar(); ///< of the caret
    void fallo(const QString& texto);

private:
    void titula();

    QString nombre_;
    QVBoxLayout columna_;
    QLabel titulo_;
    DocumentoTexto documento_{norvik_}; ///< goes after the control
    ControlNorvik norvik_;
};

} // namespace norvik::taller
