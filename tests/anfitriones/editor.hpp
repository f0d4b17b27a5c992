// SPDX-License-Identifier: MIT

#pragma once

#include <norvik/widget/controlNorvik.hpp>

#include <QListWidget>
#include <QMainWindow>
#include <QSplitter>

#include <vector>

/// An editor of one language, with the errors of its text below: a click on one goes to its place.
class Editor : public QMainWindow {
public:
    explicit Editor(const QString& fichero) {
        auto* const division = new QSplitter(Qt::Vertical, this);
        setCentralWidget(division);
        texto = new norvik::ControlNorvik(division);
        errores = new QListWidget(division);
        texto->cargaLenguajeDe(fichero);
        texto->Colorear(true);
        texto->control().ponAyudas(norvik::todasLasAyudas());
        connect(texto, &norvik::ControlNorvik::textoCambiado, this, &Editor::revisa);
        connect(errores, &QListWidget::itemClicked, this, [this] {
            texto->irA(diagnosticos.at(static_cast<std::size_t>(errores->currentRow())).rango);
        });
        revisa();
    }

    norvik::ControlNorvik* texto;
    QListWidget* errores;

private:
    void revisa() {
        diagnosticos = analiza(texto->control().lenguaje(), texto->control().Text()).diagnosticos;
        texto->ponDiagnosticos(diagnosticos);
        errores->clear();
        for (const auto& error : diagnosticos)
            errores->addItem(QString("%1:%2 %3")
                                 .arg(error.rango.inicio.linea)
                                 .arg(error.rango.inicio.columna)
                                 .arg(QString::fromStdU16String(mensaje(error))));
    }

    std::vector<norvik::Diagnostico> diagnosticos;
};
