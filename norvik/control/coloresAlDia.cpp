// SPDX-License-Identifier: MIT

// Definitions are searched in the text as a whole, each from where its last match ended: what a key changes
// at its place may change any token behind it, and an incremental reading would have to follow every
// definition on its own. Recognising all of a text of 65,536 characters takes as long as drawing a few of its
// lines, so that is done after each change, and only what has another colour than before is painted. Longer
// texts are recognised in another thread.

#include "norvik/control/coloresAlDia.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/control/colorista.hpp"

#include <algorithm>
#include <chrono>

namespace norvik::inline v0_2 {

namespace {

/// Of a key, many times what it takes.
constexpr auto plazo = std::chrono::milliseconds(250);

} // namespace

ColoresAlDia::ColoresAlDia(const Prestado<CajaTexto>& caja, const Prestado<Contenedor>& contenedor,
                           LenguajeDeAhora& lenguaje)
    : caja_(caja), contenedor_(contenedor), lenguaje_(lenguaje) {}

ColoresAlDia::~ColoresAlDia() = default;

void ColoresAlDia::pon(Salvo salvo) {
    if (caja_->texto().size() > maximoAlMomento && contenedor_->coloreaDespues()) return;
    miraElLenguaje();
    if (desistido_) return;
    try {
        toma(lee(), salvo);
    } catch (const BusquedaDesbocada&) {
        desistido_ = sinLiterales_ = true;
        throw;
    }
}

const std::vector<Literal>* ColoresAlDia::literales() {
    miraElLenguaje();
    if (sinLiterales_) return nullptr;
    try {
        lee();
    } catch (const BusquedaDesbocada&) {
        sinLiterales_ = true;
        throw;
    }
    return &colorista_->literales();
}

/// Once, whoever asks.
const std::vector<TramoDeColor>& ColoresAlDia::lee() {
    if (!leido_) colores_ = colorista_->colores(caja_->texto(), Presupuesto(plazo));
    leido_ = true;
    return colores_;
}

void ColoresAlDia::miraElLenguaje() {
    const Lenguaje& actual = lenguaje_.dame();
    if (suLenguaje_ && &suLenguaje_->datos() == &actual.datos()) return;
    colorista_.reset();
    leido_ = desistido_ = sinLiterales_ = false;
    suLenguaje_ = actual;
    colorista_ = lenguaje_.colorista();
}

void ColoresAlDia::toma(std::span<const TramoDeColor> tramos, Salvo salvo) {
    const auto pinta = [this](std::int32_t desde, std::int32_t hasta, std::int32_t color) {
        if (desde < hasta) caja_->pinta(desde, hasta - desde, color);
    };
    for (const TramoDeColor& t : tramos) {
        const std::int32_t fin = t.inicio + t.longitud;
        pinta(t.inicio, std::min(fin, salvo.inicio), t.color);
        pinta(std::max(t.inicio, salvo.fin), fin, t.color);
    }
}

} // namespace norvik::inline v0_2
