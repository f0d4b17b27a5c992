// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/generacion.hpp"
#include "norvik/tools/ventanaEditor.hpp"

namespace norvik {

/// The grammar editor: the shared specification is written, coloured by the language that specifications are
/// written in, tried out and inspected.
class CodigoGramatica final : public VentanaEditor {
    Q_OBJECT

public:
    explicit CodigoGramatica(SistemaQt& sistema, QWidget* padre = nullptr);

    /// Installs the specification language and shows the shared specification. A failure (a text too long to
    /// be coloured) is raised with the text in place.
    void carga();

protected:
    void alCerrar() override { recoge(); }

private:
    void recoge();
    void probarElLenguaje();
    void verInforme();

    LenguajeAparte lenguaje_;
};

} // namespace norvik
