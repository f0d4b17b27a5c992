// SPDX-License-Identifier: MIT

#include "norvik/control/disposicion.hpp"

namespace norvik::inline v0_2 {

namespace {

constexpr std::int32_t anchoDelMargenDeSenales = 300;
constexpr std::int32_t menorLado = 50;

/// Left for the frame on every side.
std::int32_t borde(const Superficie& s) {
    return s.borde3D ? 2 * s.pixelX : s.pixelX;
}

std::int32_t xDelSeparador(const Superficie& s) {
    return anchoDelMargenDeSenales + s.bordeAdicional + borde(s);
}

/// Inside the sunken frame, or round the whole control when there is none.
Rectangulo marcoOscuro(const Superficie& s) {
    if (!s.borde3D) return {0, 0, s.ancho, s.alto};
    return {s.pixelX, s.pixelY, s.ancho - 2 * s.pixelX, s.alto - 2 * s.pixelY};
}

/// In the gap between the left border and the text, when there is one.
std::optional<Rectangulo> espaciador(const Superficie& s, const Rectangulo& debugBox,
                                     const Rectangulo& texto) {
    if (!s.leftBorderVisible || s.margenIzquierdo < 2 * s.pixelX) return std::nullopt;
    const std::int32_t x = xDelSeparador(s) + s.pixelX;
    return Rectangulo{x, debugBox.y, texto.x - x, debugBox.alto};
}

} // namespace

std::int32_t izquierdaDelTexto(const Superficie& s) {
    return s.leftBorderVisible ? xDelSeparador(s) + s.pixelX + s.margenIzquierdo : borde(s);
}

std::int32_t izquierdaFueraDeLaVista(const Superficie& s) {
    constexpr std::int32_t masAlla = 100;
    return s.ancho + masAlla;
}

std::optional<Disposicion> disponeElementos(const Superficie& s) {
    if (s.ancho < menorLado || s.alto < menorLado) return std::nullopt;
    const std::int32_t i = borde(s);
    const std::int32_t x = izquierdaDelTexto(s);
    Disposicion d;
    d.separador = {xDelSeparador(s), 0, xDelSeparador(s), s.alto};
    d.bordeNegro = marcoOscuro(s);
    d.debugBox = {i, i, xDelSeparador(s) - i, s.alto - 2 * i};
    d.texto = {x, i, s.ancho - x - i, s.alto - 2 * i};
    d.controlSpace = espaciador(s, d.debugBox, d.texto);
    d.bordeClaro1 = {s.pixelX, s.alto - 2 * s.pixelY, s.ancho - s.pixelX, s.alto - 2 * s.pixelY};
    d.bordeClaro2 = {s.ancho - 2 * s.pixelX, s.pixelY, s.ancho - 2 * s.pixelX, s.alto - s.pixelY};
    d.bordeOscuro1 = {0, 0, s.ancho - s.pixelX, 0};
    d.bordeOscuro2 = {0, 0, 0, s.alto - s.pixelY};
    d.bordeClaroBase = {0, 0, s.ancho, s.alto};
    return d;
}

LugarDeSigno lugarDeSigno(std::int32_t linea, std::int32_t primeraLineaVisible, std::int32_t altoDeLinea) {
    constexpr std::int32_t izquierda = 30;
    return {izquierda, (linea - 1 - primeraLineaVisible) * altoDeLinea};
}

} // namespace norvik::inline v0_2
