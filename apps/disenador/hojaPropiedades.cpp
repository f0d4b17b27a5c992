// SPDX-License-Identifier: MIT

#include "hojaPropiedades.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace norvik::disenador {

HojaPropiedades::HojaPropiedades(const ControlNorvik& control, QDesignerPropertySheetExtension& corriente,
                                 QObject* padre)
    : QObject(padre), control_(control), corriente_(corriente) {
    for (const PropiedadPublicada& p : propiedadesPublicadas)
        corriente_.setPropertyGroup(corriente_.indexOf(QLatin1String(p.nombre)), aQString(p.grupo));
}

Clase HojaPropiedades::clase(int indice) const {
    const PropiedadPublicada* const p = publicada(propertyName(indice));
    return p == nullptr ? Clase::Otra : p->clase;
}

QVariant HojaPropiedades::property(int indice) const {
    switch (clase(indice)) {
    case Clase::Nombre:
    case Clase::Texto:
        return control_.property(propertyName(indice).toLatin1()).toString().toUtf8().replace("\r\n", "\n");
    case Clase::Numero16:
    case Clase::Otra:
        break;
    }
    return corriente_.property(indice);
}

/// A failure raised from here would end the designer.
void HojaPropiedades::setProperty(int indice, const QVariant& valor) {
    using Limites = std::numeric_limits<std::int16_t>;
    switch (clase(indice)) {
    case Clase::Numero16:
        return corriente_.setProperty(indice, std::clamp<int>(valor.toInt(), Limites::min(), Limites::max()));
    case Clase::Nombre:
    case Clase::Texto:
        return corriente_.setProperty(
            indice, valor.typeId() == QMetaType::QByteArray ? QVariant(valor.toString()) : valor);
    case Clase::Otra:
        return corriente_.setProperty(indice, valor);
    }
}

} // namespace norvik::disenador
