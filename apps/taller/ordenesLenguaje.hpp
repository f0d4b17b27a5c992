// SPDX-License-Identifier: MIT

#pragma once

#include "dialogos.hpp"
#include "ejemplos.hpp"
#include "formulario.hpp"
#include "panelArbol.hpp"
#include "panelMensaje.hpp"
#include "ventanaRevision.hpp"

#include <cstddef>
#include <optional>

namespace norvik::taller {

/// The commands on the language of the active control, and parsing with it.
class OrdenesLenguaje {
public:
    OrdenesLenguaje(Formulario& formulario, SistemaQt& sistema, Dialogos& dialogos, PanelArbol& arbol,
                    PanelMensaje& mensaje, VentanaRevision& revision)
        : formulario_(formulario), sistema_(sistema), dialogos_(dialogos), arbol_(arbol), mensaje_(mensaje),
          revision_(revision) {}

    /// Makes room for one that is to be written; false when the user gives up.
    bool nuevo();
    void abre();
    /// A specification becomes the one that the control keeps; a module is remembered by its file.
    void abre(const QString& fichero);
    bool guardaEspecificacion();
    /// Loads the languages that are not loaded yet, and tells what is wrong with them.
    void preparaTodos();

    /// Parses the text: the tree, or the error. How many nodes it has, if it was accepted.
    std::optional<std::size_t> analiza();
    /// What the last parse left is shown no more.
    void olvidaAnalisis();
    void vaAlError();
    void muestraInforme();
    /// Shows what there is to say of the specification, and where the classic method leaves the grammar.
    void revisa();
    /// Makes a specification that was written elsewhere the one that the active control keeps.
    bool toma(const std::u16string& especificacion);
    /// Makes the language that was reviewed one of the `lalr` method, and reviews it again.
    void pasaALalr();

private:
    bool prepara(ElementoFormulario& elemento);
    void cambia(ElementoFormulario& elemento, const std::function<void()>& cambio);
    bool puedePerder(ElementoFormulario& elemento);
    bool hayLenguaje();
    std::optional<std::size_t> analizaLargo(ControlNorvik& norvik);
    Analisis comoValor(ControlNorvik& norvik);
    std::size_t muestra(ArbolAnalisis arbol);

    Formulario& formulario_;
    SistemaQt& sistema_;
    Dialogos& dialogos_;
    PanelArbol& arbol_;
    PanelMensaje& mensaje_;
    VentanaRevision& revision_;
    ModeloArbol::Hoja error_;
};

} // namespace norvik::taller
