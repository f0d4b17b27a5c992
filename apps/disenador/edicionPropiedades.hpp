// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/tools/ventanaPropiedades.hpp"

#include <QDesignerFormWindowInterface>
#include <QPointer>
#include <QVariantMap>

namespace norvik::disenador {

/// The property pages of a control on a form. They work on a copy of it: what is changed there goes to the
/// control as one command of its form, which can be undone and is saved with it. Deletes itself when its
/// window is closed, which happens too when the control goes.
class EdicionPropiedades final : public QObject {
    Q_OBJECT

public:
    EdicionPropiedades(ControlNorvik& control, QDesignerFormWindowInterface& formulario);

    void muestra();

private:
    QVariantMap valores() const;
    void quitaImposibles();
    void vuelca();
    void abandona();

    QPointer<ControlNorvik> control_;
    SistemaQt sistema_;
    ControlNorvik copia_{sistema_, nullptr};
    QVariantMap anotados_; ///< what the control was given, or had at first
    VentanaPropiedades ventana_;
};

} // namespace norvik::disenador
