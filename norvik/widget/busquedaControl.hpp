// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/widget/barraBusqueda.hpp"

#include <memory>

namespace norvik {

/// How a control is searched: with its bar, when its host has it use one, else with the dialog.
class BusquedaControl {
public:
    BusquedaControl(ControlNorvik& control, Resaltes& resaltes) : control_(control), resaltes_(resaltes) {}

    void abre();
    void sigue(BarraBusqueda::Salto salto);
    /// There is no bar any more, if the host does not want it.
    void atiendeAyudas();
    /// Takes the bar's place away from the lower edge of the text's; to its left the bar begins.
    QRect aparta(const QRect& texto, int izquierda);

private:
    bool conBarra() const;
    BarraBusqueda& barra();

    ControlNorvik& control_;
    Resaltes& resaltes_;
    std::unique_ptr<BarraBusqueda> barra_; ///< once it has been asked for
};

} // namespace norvik
