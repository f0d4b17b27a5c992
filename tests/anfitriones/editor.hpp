// SPDX-License-Identifier: MIT

#pragma once

#include <norvik/spec/lenguaje.hpp>
#include <norvik/widget/controlNorvik.hpp>

#include <QListWidget>
#include <QMainWindow>
#include <QSplitter>

#include <string>
#include <vector>

/// An editor of one language, with the errors of its text below: a click on one goes to its place.
class Editor : public QMainWindow {
public:
    explicit Editor(const std::u16string& especificacion)
        : lenguaje(norvik::Lenguaje::compila(especificacion).lenguaje.value()) {
        auto* const division = new QSplitter(Qt::Vertical, this);
        setCentralWidget(division);
        texto = new norvik::ControlNorvik(division);
        errores = new QListWidget(division);
        norvik::Norvik& control = texto->control();
        control.Colorear(true);
        if (!control.CargaGramatica(especificacion) || !control.GeneraCompilador())
            errores->addItem("sin colores");
        connect(texto, &norvik::ControlNorvik::change, this, &Editor::revisa);
        connect(errores, &QListWidget::itemClicked, this, [this] { vaAlError(errores->currentRow()); });
        revisa();
    }

    norvik::ControlNorvik* texto;
    QListWidget* errores;

private:
    void revisa() {
        diagnosticos = analiza(lenguaje, texto->control().Text()).diagnosticos;
        errores->clear();
        for (const auto& error : diagnosticos)
            errores->addItem(QString("%1:%2 %3")
                                 .arg(error.rango.inicio.linea)
                                 .arg(error.rango.inicio.columna)
                                 .arg(QString::fromStdU16String(mensaje(error))));
    }
    void vaAlError(int cual) {
        const auto& [inicio, fin] = diagnosticos.at(static_cast<std::size_t>(cual)).rango;
        try {
            texto->SelStart(inicio.desplazamiento);
            texto->SelLength(fin.desplazamiento - inicio.desplazamiento);
        } catch (const norvik::ErrorNorvik& error) { // a place beyond those of 16 bits
            errores->addItem(error.what());
        }
        texto->setFocus();
    }

    norvik::Lenguaje lenguaje;
    std::vector<norvik::Diagnostico> diagnosticos;
};
