// SPDX-License-Identifier: MIT

// A change of the text that also moves the caret is one event of the box. All that the control does about it
// is done first; then the host hears of the caret, and of the text last: a receiver finds the change
// recorded, and an error that it marks when the caret comes to another line is not taken for one that the
// change ends. A failure on the way (a text too long to be coloured, a receiver that throws) ends nothing
// halfway.

#include "norvik/control/edicion.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/control/lineasTexto.hpp"
#include "norvik/control/pasosFirmes.hpp"
#include "norvik/control/sangria.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

// Whoever hears of an event may delete the box, and with it what is connected here: each leaves to a member
// what it does after that.
void Edicion::conecta(std::weak_ptr<const void> duenio) {
    CajaTexto::Eventos& e = caja_->eventos;
    const auto libre = [this, &duenio](auto accion) {
        return [this, duenio, accion](auto&... argumentos) {
            const auto vivo = duenio.lock();
            if (vivo != nullptr && !callada_ && !lineas_.ocupado()) accion(argumentos...);
        };
    };
    e.cambio = [this, duenio](const CambioDeTexto& cambio) {
        const auto vivo = duenio.lock();
        if (vivo != nullptr) alCambiarLaCaja(cambio);
    };
    e.cambioDeSeleccion = libre([this] { alCambiarLaSeleccion(); });
    e.teclaAbajo = libre([this](auto& codigo, auto& shift) { alBajarTecla(codigo, shift); });
    e.pulsacion = libre([this](auto& caracter) { avisa(eventos_.KeyPress, caracter); });
    e.teclaArriba = libre([this](auto& codigo, auto& shift) { alSubirTecla(codigo, shift); });
    e.ratonAbajo = libre([this](auto&... a) { avisa(eventos_.MouseDown, a...); });
    e.ratonMueve = libre([this](auto&... a) { avisa(eventos_.MouseMove, a...); });
    e.ratonArriba = libre([this](auto&... a) { avisa(eventos_.MouseUp, a...); });
    e.click = libre([this] { avisa(eventos_.Click); });
    e.pierdeFoco = libre([this] { alPerderElFoco(); });
    e.vaAPegar = libre([this] { lineas_.vaAPegar(); });
    e.empiezaPaso = libre([this] { historial_.empiezaPaso(); });
    e.acabaPaso = libre([this] { historial_.acabaPaso(); });
}

std::int16_t Edicion::lineaActual() const {
    return numeroDeLinea(caja_->lineaDeCaracter(caja_->inicioSeleccion()));
}

std::int32_t Edicion::columnaActual() const {
    const std::int32_t cursor = caja_->inicioSeleccion();
    return cursor - caja_->inicioDeLinea(caja_->lineaDeCaracter(cursor)) + 1;
}

// --- Changes ---

void Edicion::alCambiarLaCaja(const CambioDeTexto& cambio) {
    PasosFirmes paso;
    lineas_.siguePosiciones(cambio);
    if (lineas_.ocupado()) paso([&] { historial_.corrige(cambio); });
    textoPorAvisar_ = true;
    paso([&] { contenedor_->cambioElTexto(cambio); }); // before who changes the text once more
    if (!callada_ && !lineas_.ocupado()) paso([&] { alCambiar(cambio); });
    paso.acaba();
}

void Edicion::alCambiar(const CambioDeTexto& cambio) {
    PasosFirmes paso;
    const bool graba = historial_.grabaDeshacer();
    if (graba) paso([&] { historial_.anota(cambio); });
    const auto linea = lineas_.alCambiar(cambio, paso);
    if (graba) paso([this] { historial_.registra(); });
    if (cambio.otraSeleccion) avisaSeleccion(linea, paso);
    if (graba) paso([this] { avisa(eventos_.change); });
    if (graba) paso([this] { avisaTexto(); });
    paso.acaba();
}

void Edicion::avisaTexto() {
    if (porAcabar_ == 0 && std::exchange(textoPorAvisar_, false)) avisa(eventos_.textoCambiado);
}

void Edicion::alCambiarLaSeleccion() {
    historial_.corta();
    PasosFirmes paso;
    avisaSeleccion(lineas_.alCambiarLaSeleccion(paso), paso);
    if (historial_.grabaDeshacer()) paso([this] { avisaTexto(); });
    paso.acaba();
}

void Edicion::avisaSeleccion(std::optional<std::int32_t> linea, PasosFirmes& paso) {
    if (linea) {
        paso([&] {
            std::int16_t nueva = numeroDeLinea(*linea);
            avisa(eventos_.CambioDeLinea, nueva);
        });
    }
    lineas_.rangoVisto();
    if (historial_.grabaDeshacer()) paso([this] { avisa(eventos_.SelChange); });
}

void Edicion::alPerderElFoco() {
    PasosFirmes paso;
    paso([this] { lineas_.alPerderElFoco(); });
    paso([this] { avisaTexto(); });
    paso.acaba();
}

// --- Keys ---

namespace {

constexpr std::int16_t teclaFin = 35;
constexpr std::int16_t teclaInicio = 36;

/// By words, and to both ends of the text.
bool esDePalabras(std::int16_t codigo) {
    return codigo == tecla::izquierda || codigo == tecla::derecha || codigo == tecla::retroceso ||
           codigo == tecla::suprimir || codigo == teclaInicio || codigo == teclaFin;
}

} // namespace

void Edicion::alBajarTecla(std::int16_t& codigo, std::int16_t& shift) {
    if (shift == mascara::control) {
        if (!ayudas_.teclasDePalabra || !esDePalabras(codigo)) codigo = 0;
    } else if (codigo == tecla::insertar && shift == mascara::mayusculas && !caja_->soloLectura()) {
        lineas_.vaAPegar();
    }
    avisa(eventos_.KeyDown, codigo, shift);
}

void Edicion::alSubirTecla(std::int16_t& codigo, std::int16_t& shift) {
    PasosFirmes paso;
    const bool sangrada = codigo == tecla::retorno && opciones_.autoTAB && !caja_->soloLectura();
    if (sangrada) paso([this] { sangra(); });
    paso([&] { avisa(eventos_.KeyUp, codigo, shift); });
    paso.acaba();
}

/// Gives an empty line the leading spaces of the one above. Beyond the lines that have a number a control
/// without aids raises a failure.
void Edicion::sangra() {
    const std::int32_t linea = caja_->lineaDeCaracter(caja_->inicioSeleccion());
    const std::int32_t n = ayudas_ == Ayudas{} ? lineaActual() : linea + 1;
    if (n < 2 || !textoDeLinea(*caja_, n - 1).empty()) return;
    const auto superior = textoDeLinea(*caja_, n - 2);
    const std::size_t cuantos = std::min(superior.find_first_not_of(u' '), superior.size());
    caja_->reemplazaSeleccion(espacios(1, a16(cuantos)));
}

void Edicion::tabula() {
    PasosFirmes paso;
    if (caja_->soloLectura()) {
        // nothing is written
    } else if (ayudas_.sangraSeleccion && hayVariasLineas(*caja_)) {
        paso([this] {
            historial_.exacto([this] { sangraLineas(caja_, std::max<int>(opciones_.espaciosXTAB, 0)); });
        });
    } else {
        paso([this] { caja_->reemplazaSeleccion(espacios(1, opciones_.espaciosXTAB)); });
    }
    paso([this] { caja_->enfoca(); });
    paso.acaba();
}

void Edicion::quitaSangria() {
    if (caja_->soloLectura()) return;
    const std::int32_t espacios = std::max<int>(opciones_.espaciosXTAB, 0);
    historial_.exacto([&] { norvik::quitaSangria(caja_, espacios); });
}

} // namespace norvik::inline v0_2
