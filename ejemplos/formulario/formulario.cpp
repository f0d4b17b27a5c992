// SPDX-License-Identifier: MIT

#include "formulario.hpp"

#include "Calculadora.hpp" // written by norvik modulo

#include "norvik/base/errores.hpp"

#include <QTreeWidgetItem>

#include <utility>
#include <vector>

Formulario::Formulario() {
    ui_.setupUi(this);
    norvik::Norvik& norvik = ui_.editor->control();
    Calculadora::CargaLenguaje(norvik);
    norvik.Text(u"# el perímetro y el área de un círculo\r\n"
                u"radio := 2,5;\r\n"
                u"pi := 3,1416;\r\n"
                u"escribe 2 * pi * radio;\r\n"
                u"escribe pi * radio ^ 2;\r\n");
    norvik.ColoreaTodo();
    connect(ui_.analizar, &QPushButton::clicked, this, [this] { analiza(); });
    connect(ui_.editor, &norvik::ControlNorvik::change, this, [this] { ui_.resultado->clear(); });
}

/// What the control cannot do, such as parse a text of more than 32,766 characters, it raises; an exception
/// that left a slot would end the program.
void Formulario::analiza() {
    norvik::Norvik& norvik = ui_.editor->control();
    ui_.arbol->clear();
    try {
        if (norvik.ConstruyeArbolSintactico()) {
            ui_.resultado->setText("Análisis sintáctico correcto");
            muestraArbol();
        } else {
            ui_.resultado->setText(norvik::aQString(norvik.GetmensajeError()));
        }
    } catch (const norvik::ErrorNorvik& fallo) {
        ui_.resultado->setText(norvik::aQString(fallo.texto()));
    }
}

/// A text may make a tree as deep as it is long, so nothing calls itself here.
void Formulario::muestraArbol() {
    using Pendiente = std::pair<const norvik::Arbol*, QTreeWidgetItem*>;
    std::vector<Pendiente> pendientes = {
        {&ui_.editor->control().GetArbolSintactico(), ui_.arbol->invisibleRootItem()}};
    while (!pendientes.empty()) {
        const auto [nodo, padre] = pendientes.back();
        pendientes.pop_back();
        if (nodo->GetNumHijos() == 1) { // a rule that only passes on what is below it
            pendientes.emplace_back(nodo->GetHijo(1), padre);
            continue;
        }
        const auto texto = nodo->GetEsHoja() ? nodo->GetLexema() : nodo->GetNomRegla();
        auto* const rama = new QTreeWidgetItem(padre, {norvik::aQString(texto)});
        for (std::int16_t i = nodo->GetNumHijos(); i > 0; --i)
            pendientes.emplace_back(nodo->GetHijo(i), rama);
    }
    ui_.arbol->expandAll();
}
