// SPDX-License-Identifier: MIT

#pragma once

#include "edicionPropiedades.hpp"

#include <QAction>
#include <QDesignerTaskMenuExtension>
#include <QPointer>

namespace norvik::disenador {

/// What the context menu of a control on a form has besides: its property pages, which a double click opens
/// too.
class MenuPropiedades final : public QObject, public QDesignerTaskMenuExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    MenuPropiedades(ControlNorvik& control, QObject* padre);

    QAction* preferredEditAction() const override { return accion_; }
    QList<QAction*> taskActions() const override { return {accion_}; }

private:
    void muestra();

    ControlNorvik& control_;
    QAction* accion_;
    QPointer<EdicionPropiedades> abierta_;
};

} // namespace norvik::disenador
