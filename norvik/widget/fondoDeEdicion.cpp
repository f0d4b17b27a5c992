// SPDX-License-Identifier: MIT

#include "norvik/widget/fondoDeEdicion.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/presupuesto.hpp"
#include "norvik/control/coloresAlDia.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <chrono>
#include <string>
#include <utility>

namespace norvik {

namespace {

constexpr auto esperaDeColores = std::chrono::milliseconds(20); // several changes, one reading
constexpr auto pausa = std::chrono::milliseconds(300);
constexpr auto plazo = std::chrono::milliseconds(250); // of a text of common length, many times what it takes

} // namespace

FondoDeEdicion::FondoDeEdicion(Norvik& control, CajaTextoQt& caja) : control_(control), caja_(caja) {
    coloreaPronto_.setSingleShot(true);
    coloreaPronto_.setInterval(esperaDeColores);
    coloreaPronto_.callOnTimeout([this] { caja_.protege([this] { colorea(); }); });
    recoloreaPronto_.setSingleShot(true); // once, after the calls that load a language
    recoloreaPronto_.callOnTimeout([this] {
        caja_.pideAlDia();
        caja_.protege([this] { control_.actualizaColores(); });
    });
    analizaTrasPausa_.setSingleShot(true);
    analizaTrasPausa_.setInterval(pausa);
    analizaTrasPausa_.callOnTimeout([this] { caja_.protege([this] { analiza(); }); });
}

void FondoDeEdicion::cambioElTexto(const CambioDeTexto& cambio) {
    ++version_;
    literalesDe_.reset();
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

void FondoDeEdicion::otroLenguaje() {
    recoloreaPronto_.start();
    if (control_.ayudas().pliega) analizaTrasPausa_.start();
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
            auto colores = colorista->colores(texto, Presupuesto(Presupuesto::plazoComun, parada));
            return Lectura{std::move(colores), colorista->literales()};
        },
        [this, colorista, version = version_](std::optional<Lectura> lectura) {
            if (!lectura && colorista == colorista_) desistido_ = true;
            if (lectura) caja_.protege([&] { toma(*std::move(lectura), colorista, version); });
        });
}

void FondoDeEdicion::toma(Lectura&& lectura, const std::shared_ptr<Colorista>& de, std::uint64_t version) {
    if (version != version_) return pideColores();
    literales_ = std::move(lectura.literales);
    literalesDe_ = de;
    caja_.pideAlDia();
    control_.tomaColores(lectura.colores);
}

const std::vector<Literal>* FondoDeEdicion::literales() {
    const std::shared_ptr<Colorista> suyo = colorista();
    if (literalesDe_ == suyo) return &literales_;
    if (desistido_ || trabajoColores_.trabaja()) return nullptr;
    if (caja_.texto().size() > ColoresAlDia::maximoAlMomento) return pideColores(), nullptr;
    try {
        suyo->colores(caja_.texto(), Presupuesto(plazo));
    } catch (const BusquedaDesbocada&) {
        desistido_ = true;
        return nullptr;
    }
    literales_ = suyo->literales();
    literalesDe_ = suyo;
    return &literales_;
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
