// SPDX-License-Identifier: MIT

#include "norvik/widget/fondoDeEdicion.hpp"

#include "norvik/base/presupuesto.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <chrono>
#include <string>
#include <utility>

namespace norvik {

namespace {

constexpr auto esperaDeColores = std::chrono::milliseconds(20); // several changes, one reading
constexpr auto pausa = std::chrono::milliseconds(300);

} // namespace

FondoDeEdicion::FondoDeEdicion(Norvik& control, CajaTextoQt& caja) : control_(control), caja_(caja) {
    coloreaPronto_.setSingleShot(true);
    coloreaPronto_.setInterval(esperaDeColores);
    coloreaPronto_.callOnTimeout([this] { caja_.protege([this] { colorea(); }); });
    analizaTrasPausa_.setSingleShot(true);
    analizaTrasPausa_.setInterval(pausa);
    analizaTrasPausa_.callOnTimeout([this] { caja_.protege([this] { analiza(); }); });
}

void FondoDeEdicion::cambioElTexto(const CambioDeTexto& cambio) {
    ++version_;
    if (!control_.ayudas().pliega) return;
    pliegues_.alCambiar(cambio);
    analizaTrasPausa_.start();
}

void FondoDeEdicion::otrasAyudas() {
    if (control_.ayudas().pliega) return analizaTrasPausa_.start();
    analizaTrasPausa_.stop();
    pliegues_.toma({});
    if (otrosPliegues) otrosPliegues();
}

// ---- colours

void FondoDeEdicion::pideColores() {
    if (!coloreaPronto_.isActive()) coloreaPronto_.start();
}

const std::shared_ptr<Colorista>& FondoDeEdicion::colorista() {
    const Lenguaje actual = control_.lenguaje();
    if (!lenguaje_ || &lenguaje_->datos() != &actual.datos()) {
        colorista_ = control_.colorista();
        lenguaje_ = actual;
        desistido_ = false;
    }
    return colorista_;
}

void FondoDeEdicion::colorea() {
    const std::shared_ptr<Colorista> colorista = this->colorista();
    if (desistido_ || trabajoColores_.trabaja()) return;
    trabajoColores_.empieza(
        [colorista, texto = std::u16string(caja_.texto())](const std::stop_token& parada) {
            return colorista->colores(texto, Presupuesto(Presupuesto::plazoComun, parada));
        },
        [this, colorista, version = version_](std::optional<Colores> colores) {
            if (!colores && colorista == colorista_) desistido_ = true;
            if (colores) caja_.protege([&] { tomaColores(*colores, version); });
        });
}

void FondoDeEdicion::tomaColores(const Colores& colores, std::uint64_t version) {
    if (version != version_) return pideColores();
    control_.tomaColores(colores);
}

// ---- constructions

void FondoDeEdicion::analiza() {
    if (trabajoAnalisis_.trabaja()) return analizaTrasPausa_.start();
    trabajoAnalisis_.empieza(
        [lenguaje = control_.lenguaje(),
         texto = std::u16string(caja_.texto())](const std::stop_token& parada) {
            const Analisis analisis = norvik::analiza(lenguaje, texto, {parada});
            const ArbolAnalisis& arbol = analisis ? analisis.arbol : analisis.reparado;
            return arbol.esVacio() ? std::nullopt : std::optional(construccionesDe(arbol));
        },
        [this, version = version_](std::optional<std::optional<Construcciones>> construcciones) {
            caja_.protege(
                [&] { tomaConstrucciones(std::move(construcciones).value_or(std::nullopt), version); });
        });
}

/// Those of an older text go on moving when this one cannot be parsed, not even repaired.
void FondoDeEdicion::tomaConstrucciones(std::optional<Construcciones> construcciones, std::uint64_t version) {
    if (version != version_) return analizaTrasPausa_.start();
    if (!construcciones) return;
    pliegues_.toma(*std::move(construcciones));
    if (otrosPliegues) otrosPliegues();
}

} // namespace norvik
