// SPDX-License-Identifier: MIT

#include "norvik/widget/resaltes.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

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

namespace {

/// So much of it as matters in what is seen; of no characters, it is of its whole line.
std::optional<CajaTextoQt::Tramo> recortado(const Resalte& r, const std::vector<CajaTextoQt::Tramo>& vistos) {
    if (r.inicio == r.fin) return CajaTextoQt::Tramo{r.inicio, r.fin};
    const auto primero = std::ranges::lower_bound(vistos, r.inicio, {}, &CajaTextoQt::Tramo::fin);
    if (primero == vistos.end() || primero->inicio > r.fin) return std::nullopt;
    return CajaTextoQt::Tramo{std::max(r.inicio, primero->inicio), std::min(r.fin, vistos.back().fin)};
}

} // namespace

void Resaltes::muestra() const {
    const auto vistos = caja_.tramosVistos();
    QList<QTextEdit::ExtraSelection> puestos;
    for (const Fuente& fuente : capas_) {
        if (!fuente || vistos.empty()) continue;
        for (const Resalte& r : fuente(vistos.front().inicio, vistos.back().fin)) {
            const auto tramo = recortado(r, vistos);
            if (tramo) puestos.append({caja_.cursorDe(*tramo), r.formato});
        }
    }
    caja_.vista().setExtraSelections(puestos);
}

} // namespace norvik
