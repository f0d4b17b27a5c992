// SPDX-License-Identifier: MIT

#include "norvik/widget/plegado.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"

#include <QAbstractTextDocumentLayout>

#include <algorithm>
#include <utility>

namespace norvik {

Plegado::Plegado(CajaTextoQt& caja, const Pliegues& pliegues) : caja_(caja), pliegues_(pliegues) {
    connect(&caja_.noticias(), &NoticiasDeCaja::sustituido, this, [this](const CambioDeTexto& cambio) {
        for (std::int32_t& lugar : plegados_) lugar = cambio.lleva(lugar);
        porMirar_ = true;
    });
}

void Plegado::permite(bool permitido) {
    permitido_ = permitido;
    if (!permitido) plegados_.clear();
    otros();
}

void Plegado::otros() {
    porMirar_ = true;
    caja_.pideAlDia();
}

void Plegado::cambia(std::int32_t linea) {
    if (pliegueDe(linea) == nullptr) return;
    const bool plegada = estaPlegada(linea);
    const std::int32_t cursor = caja_.lineaDeCaracter(caja_.inicioSeleccion());
    const Pliegue pliegue = *pliegueDe(linea);
    const std::int32_t inicio = caja_.inicioDeLinea(linea);
    if (plegada) {
        std::erase_if(plegados_, [&](std::int32_t p) { return caja_.lineaDeCaracter(p) == linea; });
    } else {
        plegados_.push_back(inicio);
    }
    otros();
    const bool oculta = !plegada && cursor > pliegue.primera && cursor <= pliegue.ultima;
    caja_.atiende([&] { // whoever hears of it may delete the box
        if (oculta) caja_.selecciona(inicio, 0);
    });
}

void Plegado::cambiaLaDelCursor() {
    const std::int32_t cursor = caja_.lineaDeCaracter(caja_.inicioSeleccion());
    const auto contiene = [cursor](const Pliegue& p) { return p.primera <= cursor && cursor <= p.ultima; };
    const auto suya = std::find_if(actuales_.rbegin(), actuales_.rend(), contiene);
    if (suya != actuales_.rend()) cambia(suya->primera);
}

void Plegado::sigue() {
    const bool hayOtros = std::exchange(porMirar_, false);
    if (hayOtros) {
        actuales_ = permitido_ ? pliegues_.en(caja_) : std::vector<Pliegue>();
        std::erase_if(plegados_,
                      [&](std::int32_t p) { return pliegueDe(caja_.lineaDeCaracter(p)) == nullptr; });
    }
    const bool abierto = despliegaElCursor();
    if (!abierto && !hayOtros) return;
    muestraLineas();
    if (abierto) caja_.vista().ensureCursorVisible(); // it was looked for when it was hidden
    emit cambiado();
}

/// Where a person goes is seen.
bool Plegado::despliegaElCursor() {
    const std::int32_t cursor = caja_.lineaDeCaracter(caja_.inicioSeleccion());
    return std::erase_if(plegados_, [&](std::int32_t lugar) {
               const Pliegue* const p = pliegueDe(caja_.lineaDeCaracter(lugar));
               return p != nullptr && cursor > p->primera && cursor <= p->ultima;
           }) > 0;
}

const Pliegue* Plegado::pliegueDe(std::int32_t linea) const {
    const auto p = std::ranges::lower_bound(actuales_, linea, {}, &Pliegue::primera);
    return p != actuales_.end() && p->primera == linea ? &*p : nullptr;
}

bool Plegado::estaPlegada(std::int32_t linea) const {
    return std::ranges::any_of(plegados_, [&](std::int32_t p) { return caja_.lineaDeCaracter(p) == linea; });
}

Plegado::Estado Plegado::estado(std::int32_t linea) const {
    if (pliegueDe(linea) == nullptr) return Estado::Ninguno;
    return estaPlegada(linea) ? Estado::Plegado : Estado::Abierto;
}

/// One pass over the lines; none while there is nothing to hide and nothing hidden.
void Plegado::muestraLineas() {
    if (plegados_.empty() && !hayOcultas_) return;
    std::vector<Pliegue> ocultos;
    ocultos.reserve(plegados_.size());
    for (const std::int32_t lugar : plegados_) ocultos.push_back(*pliegueDe(caja_.lineaDeCaracter(lugar)));
    std::ranges::sort(ocultos, {}, &Pliegue::primera);
    auto siguiente = ocultos.begin();
    std::int32_t hasta = -1; // hidden up to this line
    std::int32_t linea = 0;
    for (QTextBlock b = caja_.vista().document()->begin(); b.isValid(); b = b.next(), ++linea) {
        const bool visible = linea > hasta;
        if (b.isVisible() != visible) {
            b.setVisible(visible);
            b.setLineCount(visible ? 1 : 0);
        }
        for (; siguiente != ocultos.end() && siguiente->primera == linea; ++siguiente)
            hasta = std::max(hasta, siguiente->ultima);
    }
    hayOcultas_ = !ocultos.empty();
    QAbstractTextDocumentLayout& trazado = *caja_.vista().document()->documentLayout();
    emit trazado.documentSizeChanged(trazado.documentSize());
    emit trazado.update();
}

} // namespace norvik
