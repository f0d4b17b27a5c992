// SPDX-License-Identifier: MIT

#include "norvik/widget/fondoDeEdicion.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/presupuesto.hpp"
#include "norvik/control/coloresAlDia.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"

#include <algorithm>
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
    if (trabajoColores_.trabaja()) desdeLaLectura_.anota(cambio);
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

void CambiosJuntos::anota(const CambioDeTexto& cambio) {
    const std::int32_t crece = cambio.puestos - cambio.quitados;
    if (!hay_) inicio_ = finAntes_ = finAhora_ = cambio.inicio;
    const std::int32_t mas = std::max(cambio.inicio + cambio.quitados - finAhora_, 0);
    inicio_ = std::min(inicio_, cambio.inicio);
    finAntes_ += mas;
    finAhora_ += mas + crece;
    hay_ = true;
}

void CambiosJuntos::traslada(std::vector<TramoDeColor>& tramos) const {
    if (!hay_) return;
    std::vector<TramoDeColor> quedan;
    quedan.reserve(tramos.size() + 1);
    const auto pon = [&](std::int32_t desde, std::int32_t hasta, std::int32_t color) {
        if (desde < hasta) quedan.push_back({desde, hasta - desde, color});
    };
    for (const TramoDeColor& t : tramos) {
        const std::int32_t fin = t.inicio + t.longitud;
        const std::int32_t crece = finAhora_ - finAntes_;
        pon(t.inicio, std::min(fin, inicio_), t.color);
        pon(std::max(t.inicio, finAntes_) + crece, fin + crece, t.color);
    }
    tramos = std::move(quedan);
}

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
            try {
                auto colores = colorista->colores(texto, Presupuesto(Presupuesto::plazoComun, parada));
                return Lectura{std::move(colores), colorista->literales(), nullptr};
            } catch (const BusquedaDesbocada&) {
                return Lectura{{}, {}, std::current_exception()};
            }
        },
        [this, colorista, version = version_](std::optional<Lectura> lectura) {
            if (lectura) caja_.protege([&] { toma(*std::move(lectura), colorista, version); });
        });
    desdeLaLectura_ = {};
}

/// While keys come faster than a reading ends, it has the colours of all but what they changed meanwhile.
void FondoDeEdicion::toma(Lectura&& lectura, const std::shared_ptr<Colorista>& de, std::uint64_t version) {
    if (lectura.desbocada) {
        desistido_ |= de == colorista_;
        std::rethrow_exception(lectura.desbocada);
    }
    if (version == version_) {
        literales_ = std::move(lectura.literales);
        literalesDe_ = de;
        caja_.pideAlDia();
    } else {
        pideColores();
        if (de != colorista()) return;
        desdeLaLectura_.traslada(lectura.colores);
    }
    control_.tomaColores(lectura.colores);
}

const std::vector<Literal>* FondoDeEdicion::literales() {
    const std::vector<Literal>* suyos = nullptr;
    if (caja_.texto().size() <= ColoresAlDia::maximoAlMomento) {
        caja_.protege([&] { suyos = control_.literales(); });
        return suyos;
    }
    if (literalesDe_ == colorista()) return &literales_;
    if (!desistido_ && !trabajoColores_.trabaja()) pideColores();
    return nullptr;
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
