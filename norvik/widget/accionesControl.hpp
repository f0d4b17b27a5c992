// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/widget/accionNorvik.hpp"

#include <QAction>
#include <QObject>

#include <array>
#include <cstddef>
#include <optional>

namespace norvik {

class BusquedaControl;
class ControlNorvik;
class Plegado;

/// The actions of a control, each made when somebody first asks for it. They belong to the control, whose
/// shortcuts work wherever in it the focus is, and are enabled while there is something for them to do.
class AccionesControl final : public QObject {
    Q_OBJECT

public:
    AccionesControl(ControlNorvik& control, BusquedaControl& busqueda, Plegado& plegado);

    QAction& accion(AccionNorvik cual);
    /// Something of the control is another: before the next event of the user each action agrees with it.
    void pideAlDia();

private:
    QAction& hazAccion(AccionNorvik cual);
    void ejecuta(AccionNorvik cual);
    bool sirve(AccionNorvik cual);
    void actualiza();

    ControlNorvik& control_;
    BusquedaControl& busqueda_;
    Plegado& plegado_;
    std::array<QAction*, numeroDeAcciones> acciones_{}; ///< the control's; null until they are asked for
    std::optional<bool> hayQuePegar_;
    bool alDiaPedido_ = false;
};

} // namespace norvik
