// SPDX-License-Identifier: MIT

#include "hojaPropiedades.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace norvik::disenador {

HojaPropiedades::HojaPropiedades(const ControlNorvik& control, QDesignerPropertySheetExtension& corriente,
                                 QObject* padre)
    : QObject(padre), control_(control), corriente_(corriente) {
    enPublicadas([this](const Propiedad& p) {
        corriente_.setPropertyGroup(corriente_.indexOf(aQString(p.nombre)), aQString(p.grupo));
    });
}

QVariant HojaPropiedades::property(int indice) const {
    const Propiedad* const p = publicada(propertyName(indice));
    if (p == nullptr || !p->esTexto()) return corriente_.property(indice);
    return control_.property(nombreDe(*p)).toString().toUtf8().replace("\r\n", "\n");
}

/// A failure raised from here would end the designer.
void HojaPropiedades::setProperty(int indice, const QVariant& valor) {
    using Limites = std::numeric_limits<std::int16_t>;
    const Propiedad* const p = publicada(propertyName(indice));
    if (p != nullptr && p->esNumero16())
        return corriente_.setProperty(indice, std::clamp<int>(valor.toInt(), Limites::min(), Limites::max()));
    corriente_.setProperty(indice, valor);
}

} // namespace norvik::disenador
