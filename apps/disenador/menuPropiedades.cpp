// SPDX-License-Identifier: MIT

#include "menuPropiedades.hpp"

#include "norvik/tools/iconos.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QDesignerFormWindowInterface>

namespace norvik::disenador {

MenuPropiedades::MenuPropiedades(ControlNorvik& control, QObject* padre)
    : QObject(padre), control_(control),
      accion_(&nuevo<QAction>(icono(Dibujo::Propiedades), QStringLiteral("Propiedades …"), this)) {
    accion_->setObjectName(QStringLiteral("propiedades"));
    connect(accion_, &QAction::triggered, this, &MenuPropiedades::muestra);
}

void MenuPropiedades::muestra() {
    auto* const formulario = QDesignerFormWindowInterface::findFormWindow(&control_);
    if (formulario == nullptr) return;
    if (abierta_.isNull()) abierta_ = &nuevo<EdicionPropiedades>(control_, *formulario);
    abierta_->muestra();
}

} // namespace norvik::disenador
