// SPDX-License-Identifier: MIT

// Colouring is kept away from the keystroke. A line that is typed on is shown in colour 0 from its first
// change on and coloured once, when the caret moves to another line or the focus leaves the box. What may
// span several lines (a paste, Undo, Redo) is coloured as a range at the next change of line. A failure on
// the way (a text too long to be coloured, a receiver that throws) ends nothing halfway: the change is
// recorded and the caret's line is known before it is raised.

#include "norvik/control/edicion.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/control/lineasTexto.hpp"
#include "norvik/control/pasosFirmes.hpp"

#include <algorithm>
#include <utility>

namespace norvik {

void Edicion::conecta(std::weak_ptr<const void> duenio) {
    CajaTexto::Eventos& e = caja_->eventos;
    const auto libre = [this, &duenio](auto accion) {
        return [this, duenio, accion](auto&... argumentos) {
            const auto vivo = duenio.lock();
            if (vivo != nullptr && !callada_ && !estado_.ocupado) accion(argumentos...);
        };
    };
    e.cambio = libre([this] { alCambiar(); });
    e.cambioDeSeleccion = libre([this] { alCambiarLaSeleccion(); });
    e.teclaAbajo = libre([this](auto& codigo, auto& shift) { alBajarTecla(codigo, shift); });
    e.pulsacion = libre([this](auto& caracter) { avisa(eventos_.KeyPress, caracter); });
    e.teclaArriba = libre([this](auto& codigo, auto& shift) { alSubirTecla(codigo, shift); });
    e.ratonAbajo = libre([this](auto&... a) { avisa(eventos_.MouseDown, a...); });
    e.ratonMueve = libre([this](auto&... a) { avisa(eventos_.MouseMove, a...); });
    e.ratonArriba = libre([this](auto&... a) { avisa(eventos_.MouseUp, a...); });
    e.click = libre([this] { avisa(eventos_.Click); });
    e.pierdeFoco = libre([this] { alPerderElFoco(); });
    e.vaAPegar = libre([this] { vaAPegar(); });
}

std::int16_t Edicion::lineaActual() const {
    return numeroDeLinea(caja_->lineaDeCaracter(caja_->inicioSeleccion()));
}

std::int32_t Edicion::columnaActual() const {
    const std::int32_t cursor = caja_->inicioSeleccion();
    return cursor - caja_->inicioDeLinea(caja_->lineaDeCaracter(cursor)) + 1;
}

// --- Changes ---

void Edicion::alCambiar() {
    PasosFirmes paso;
    estado_.numLineas = caja_->numeroDeLineas();
    if (estado_.numLineasAnterior > estado_.numLineas) estado_.lineaEnEdicion = false;
    if (!estado_.lineaEnEdicion) paso([this] { ponLineaLlana(); });
    if (estado_.lineaMarcada != -1) paso([this] { quitaMarca(); });
    estado_.numLineasAnterior = estado_.numLineas;
    if (historial_.grabaDeshacer()) {
        paso([this] { historial_.registra(); });
        paso([this] { avisa(eventos_.change); });
    }
    paso.acaba();
}

void Edicion::ponLineaLlana() {
    coloreado_.descoloreaLinea(lineaActual());
    estado_.lineaEnEdicion = true;
}

void Edicion::quitaMarca() {
    const bool enEdicion = estado_.lineaEnEdicion;
    PasosFirmes paso;
    paso([this] { coloreado_.coloreaLinea(estado_.lineaMarcada); });
    estado_.lineaEnEdicion = enEdicion;
    paso.acaba();
}

void Edicion::alCambiarLaSeleccion() {
    PasosFirmes paso;
    const std::int32_t linea = caja_->lineaDeCaracter(caja_->inicioSeleccion());
    estado_.primeraLineaVisible = caja_->primeraLineaVisible();
    if (linea != estado_.lineaAnterior) paso([&] { cambiaDeLinea(linea); });
    estado_.recoloreaRango = false;
    if (historial_.grabaDeshacer()) paso([this] { avisa(eventos_.SelChange); });
    paso.acaba();
}

void Edicion::cambiaDeLinea(std::int32_t linea) {
    PasosFirmes paso;
    const bool recolorea = estado_.recoloreaRango;
    const bool estabaEnEdicion = estado_.lineaEnEdicion;
    if (recolorea || estabaEnEdicion) {
        const TextoOculto oculto(colocacion_);
        const std::int32_t cursor = caja_->inicioSeleccion();
        if (recolorea) {
            paso([&] { coloreado_.coloreaRango(estado_.posicionAnterior, cursor, Coloreado::ningunaLinea); });
        }
        if (estabaEnEdicion) paso([&] { coloreado_.coloreaLinea(estado_.lineaAnterior + 1); });
    }
    estado_.lineaEnEdicion = false;
    estado_.lineaAnterior = linea;
    estado_.posicionAnterior = caja_->inicioSeleccion();
    paso([&] {
        std::int16_t nueva = numeroDeLinea(linea);
        avisa(eventos_.CambioDeLinea, nueva);
    });
    paso.acaba();
}

// --- Keys ---

void Edicion::alBajarTecla(std::int16_t& codigo, std::int16_t& shift) {
    if (shift == mascara::control) {
        codigo = 0;
    } else if (codigo == tecla::insertar && shift == mascara::mayusculas) {
        vaAPegar();
    }
    avisa(eventos_.KeyDown, codigo, shift);
}

/// What is pasted arrives plain and is coloured as a range.
void Edicion::vaAPegar() {
    estado_.recoloreaRango = true;
    caja_->ponColorSeleccion(0);
}

void Edicion::alSubirTecla(std::int16_t& codigo, std::int16_t& shift) {
    PasosFirmes paso;
    if (codigo == tecla::retorno && opciones_.autoTAB) paso([this] { sangra(); });
    paso([&] { avisa(eventos_.KeyUp, codigo, shift); });
    paso.acaba();
}

/// Gives an empty line the leading spaces of the one above.
void Edicion::sangra() {
    const std::int16_t n = lineaActual();
    if (n < 2 || !dameLinea(n, caja_->texto()).empty()) return;
    const auto superior = dameLinea(static_cast<std::int16_t>(n - 1), caja_->texto());
    const std::size_t cuantos = std::min(superior.find_first_not_of(u' '), superior.size());
    caja_->reemplazaSeleccion(espacios(1, a16(cuantos)));
}

void Edicion::tabula() {
    PasosFirmes paso;
    paso([this] { caja_->reemplazaSeleccion(espacios(1, opciones_.espaciosXTAB)); });
    paso([this] { caja_->enfoca(); });
    paso.acaba();
}

// --- Focus ---

void Edicion::alPerderElFoco() {
    if (!estado_.lineaEnEdicion) return;
    estado_.lineaEnEdicion = false;
    coloreado_.coloreaLinea(lineaActual());
}

} // namespace norvik
