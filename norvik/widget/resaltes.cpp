// SPDX-License-Identifier: MIT

#include "norvik/widget/resaltes.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"

#include <algorithm>
#include <utility>

namespace norvik {

QColor mezcla(const QColor& color, const QColor& fondo, double parte) {
    const auto componente = [&](int encima, int debajo) {
        return qRound(encima * parte + debajo * (1 - parte));
    };
    return {componente(color.red(), fondo.red()), componente(color.green(), fondo.green()),
            componente(color.blue(), fondo.blue())};
}

void Resaltes::pon(Capa capa, Fuente fuente) {
    capas_[static_cast<std::size_t>(capa)] = std::move(fuente);
    refresca();
}

void Resaltes::refresca() {
    caja_.pideAlDia();
}

void Resaltes::muestra() const {
    const CajaTextoQt::Tramo visto = caja_.tramoVisto();
    QList<QTextEdit::ExtraSelection> puestos;
    for (const Fuente& fuente : capas_) {
        if (!fuente) continue;
        for (const Resalte& r : fuente(visto.inicio, visto.fin)) {
            if (r.fin < visto.inicio || r.inicio > visto.fin) continue;
            const QTextCursor cursor =
                caja_.cursorDe({std::max(r.inicio, visto.inicio), std::min(r.fin, visto.fin)});
            puestos.append({cursor, r.formato});
        }
    }
    caja_.vista().setExtraSelections(puestos);
}

} // namespace norvik
