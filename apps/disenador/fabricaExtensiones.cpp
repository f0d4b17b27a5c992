// SPDX-License-Identifier: MIT

#include "fabricaExtensiones.hpp"

#include "hojaPropiedades.hpp"
#include "menuPropiedades.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QExtensionManager>
#include <QScopedValueRollback>

namespace norvik::disenador {

QStringList FabricaExtensiones::extensiones() {
    return {Q_TYPEID(QDesignerTaskMenuExtension), Q_TYPEID(QDesignerPropertySheetExtension)};
}

QObject* FabricaExtensiones::createExtension(QObject* objeto, const QString& iid, QObject* padre) const {
    auto* const control = qobject_cast<ControlNorvik*>(objeto);
    if (control == nullptr || buscando_) return nullptr;
    if (iid == Q_TYPEID(QDesignerTaskMenuExtension)) return &nuevo<MenuPropiedades>(*control, padre);
    if (iid != Q_TYPEID(QDesignerPropertySheetExtension)) return nullptr;
    const QScopedValueRollback<bool> buscando(buscando_, true);
    auto* const corriente = qt_extension<QDesignerPropertySheetExtension*>(extensionManager(), objeto);
    return corriente == nullptr ? nullptr : &nuevo<HojaPropiedades>(*control, *corriente, padre);
}

} // namespace norvik::disenador
