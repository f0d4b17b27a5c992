// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/tablaPropiedades.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QByteArray>
#include <QString>

namespace norvik::disenador {

/// Null for a property that is not the control's own.
inline const Propiedad* publicada(const QString& nombre) {
    const Propiedad* const p = propiedadDeNombre(vistaDe(nombre));
    return p == nullptr || p->grupo.empty() ? nullptr : p;
}

inline QByteArray nombreDe(const Propiedad& p) {
    return aQString(p.nombre).toLatin1();
}

/// Does something with each that is shown.
template <typename Accion>
void enPublicadas(Accion accion) {
    for (const Propiedad& p : tablaPropiedades)
        if (!p.grupo.empty()) accion(p);
}

} // namespace norvik::disenador
