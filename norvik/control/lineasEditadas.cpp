// SPDX-License-Identifier: MIT

// Colouring is kept away from the keystroke. A line that is typed on is shown in colour 0 from its first
// change on and coloured once, when the caret moves to another line or the focus leaves the box. What may
// span several lines (a paste, Undo, Redo) is coloured as a range at the next change of line.
//
// A change of the text that takes the caret to another line leaves the line where it began first, and then
// edits the one where it ended: the one is coloured, the other plain until it is left. An error mark is a
// range that moves with the text; the first change ends it and colours the lines that it then has.
//
// With the aid `coloreaAlEscribir` no line is plain and none waits: colours are brought up to date after each
// change. A line that is left is then only looked at for words to be corrected.

#include "norvik/control/lineasEditadas.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/guardas.hpp"
#include "norvik/control/lineasTexto.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

// --- Painting ---

/// `linea` is the line that the range is, or `ninguna`: a line with the error colour loses it.
void LineasEditadas::coloreaRango(std::int32_t inicio, std::int32_t fin, std::int32_t linea) {
    if (!opciones_.colorear) return;
    const DibujoBloqueado bloqueado(caja_);
    const bool esUnaLinea = linea != ninguna && linea != 0;
    if (esUnaLinea && linea == lineaMarcada_) descoloreaLinea(linea);
    if (inicio > fin) return;

    const MarcaOcupado ocupado(ocupado_);
    const TextoOculto oculto(colocacion_);
    if (!alDia() || (opciones_.autoCorreccion && longitudDelTexto() <= a32(maximoTexto)))
        coloreado_.pintaTokens(inicio, fin, palabras_);
    ponAlDia();
}

void LineasEditadas::ponAlDia() {
    if (!alDia()) return;
    const DibujoBloqueado bloqueado(caja_);
    coloresAlDia_.pon({marcado_.inicio, marcado_.fin});
}

void LineasEditadas::tomaColores(std::span<const TramoDeColor> tramos) {
    if (!alDia()) return;
    const DibujoBloqueado bloqueado(caja_);
    coloresAlDia_.toma(tramos, {marcado_.inicio, marcado_.fin});
}

void LineasEditadas::coloreaLinea(std::int32_t linea) {
    std::int32_t inicio = caja_->inicioDeLinea(linea - 1);
    if (inicio < 0) inicio = caja_->inicioDeLinea(linea - 2);
    if (inicio < 0) inicio = longitudDelTexto(); // there is no such line: nothing to colour
    const std::int32_t siguiente = caja_->inicioDeLinea(linea);
    coloreaRango(inicio, siguiente < 0 ? longitudDelTexto() : siguiente, linea);
    lineaEnEdicion_ = false;
}

void LineasEditadas::coloreaPuesto(std::int32_t inicio, std::int32_t fin) {
    if (nadaEspera()) return;
    const std::int32_t primera = caja_->lineaDeCaracter(inicio);
    const std::int32_t ultima = caja_->lineaDeCaracter(fin);
    if (alDia() || primera == ultima || caja_->texto().size() > maximoTexto) return;
    coloreaRango(caja_->inicioDeLinea(primera), finDeLinea(*caja_, ultima), ninguna);
}

void LineasEditadas::coloreaTodo() {
    coloreaRango(0, longitudDelTexto(), ninguna);
    lineaEnEdicion_ = false;
}

void LineasEditadas::reconoceTodo() {
    const MarcaOcupado ocupado(ocupado_);
    coloreado_.reconoceTodo();
}

/// Paints a line in colour 0, whether colouring is on or not; a mark on it goes.
void LineasEditadas::descoloreaLinea(std::int32_t linea) {
    if (lineaMarcada_ == linea) lineaMarcada_ = ninguna;
    if (linea > numLineas_) return;
    const std::int32_t inicio = caja_->inicioDeLinea(linea - 1);
    std::int32_t fin = caja_->inicioDeLinea(linea);
    if (fin < 0) fin = longitudDelTexto();
    if (inicio < 0 || fin < inicio) return;
    if (inicio <= marcado_.inicio && marcado_.fin <= fin) marcado_ = {};

    pinta(inicio, fin, 0);
}

void LineasEditadas::marcaLinea(std::int32_t linea, std::int32_t color) {
    lineaMarcada_ = linea;
    marcado_ = {};
    const std::int32_t inicio = linea < 1 ? -1 : caja_->inicioDeLinea(linea - 1);
    if (inicio < 0) return;
    marcaToken(inicio, finDeLinea(*caja_, linea - 1), linea, color);
}

void LineasEditadas::marcaToken(std::int32_t inicio, std::int32_t fin, std::int32_t linea,
                                std::int32_t color) {
    pinta(inicio, fin, color);
    lineaEnEdicion_ = false;
    lineaMarcada_ = linea;
    marcado_ = {inicio, fin};
}

/// Leaves the caret where it was, with nothing selected. The colour of an empty selection is that of what is
/// typed next, which may be plain, but no error.
void LineasEditadas::pinta(std::int32_t inicio, std::int32_t fin, std::int32_t color) {
    const MarcaOcupado ocupado(ocupado_);
    const EdicionSilenciosa silenciosa(caja_);
    const std::int32_t cursor = caja_->inicioSeleccion();
    if (inicio < fin || color == 0) {
        caja_->selecciona(inicio, fin - inicio);
        caja_->ponColorSeleccion(color);
    }
    caja_->selecciona(cursor, 0);
}

// --- Changes of the text ---

/// What comes in before all text takes the colour of what was first.
void LineasEditadas::siguePosiciones(const CambioDeTexto& cambio) {
    coloresAlDia_.cambioElTexto();
    if (marcado_.vacio()) return;
    marcado_ = {marcado_.inicio == 0 ? 0 : cambio.lleva(marcado_.inicio), cambio.lleva(marcado_.fin)};
    if (lineaMarcada_ != ninguna && !marcado_.vacio())
        lineaMarcada_ = caja_->lineaDeCaracter(marcado_.inicio) + 1;
}

std::optional<std::int32_t> LineasEditadas::alCambiar(const CambioDeTexto& cambio, PasosFirmes& paso) {
    numLineas_ = caja_->numeroDeLineas();
    const bool cortada = caja_->lineaDeCaracter(cambio.inicio) == lineaAnterior_;
    const auto nueva = cambio.otraSeleccion ? cambiaDeLinea(cortada, paso) : std::nullopt;
    if (alDia()) {
        paso([this] { ponAlDiaTrasCambio(); });
        return nueva;
    }
    if (numLineasAnterior_ > numLineas_) lineaEnEdicion_ = false;
    if (!lineaEnEdicion_) paso([this] { ponLineaLlana(); });
    quitaMarca(paso);
    numLineasAnterior_ = numLineas_;
    return nueva;
}

/// The change ends a mark, although the colours may come late, or never again.
void LineasEditadas::ponAlDiaTrasCambio() {
    if (!marcado_.vacio()) caja_->pinta(marcado_.inicio, marcado_.fin - marcado_.inicio, 0);
    lineaEnEdicion_ = opciones_.autoCorreccion;
    lineaMarcada_ = ninguna;
    marcado_ = {};
    numLineasAnterior_ = numLineas_;
    ponAlDia();
}

void LineasEditadas::ponLineaLlana() {
    descoloreaLinea(numeroDeLinea(lineaDelCursor()));
    lineaEnEdicion_ = true;
}

/// The lines that have the error colour; where there is none, the one that was to have it.
void LineasEditadas::quitaMarca(PasosFirmes& paso) {
    if ((lineaMarcada_ == ninguna && marcado_.vacio()) || !opciones_.colorear) return;
    const bool enEdicion = lineaEnEdicion_;
    const Tramo tramo = marcado_;
    const std::int32_t primera = tramo.vacio() ? lineaMarcada_ : caja_->lineaDeCaracter(tramo.inicio) + 1;
    const std::int32_t ultima = tramo.vacio() ? primera : caja_->lineaDeCaracter(tramo.fin - 1) + 1;
    for (std::int32_t linea = primera; linea <= ultima; ++linea) paso([&] { quitaMarca(linea); });
    marcado_ = {};
    lineaEnEdicion_ = enEdicion;
}

/// The line being edited stays plain.
void LineasEditadas::quitaMarca(std::int32_t linea) {
    if (lineaEnEdicion_ && linea == lineaDelCursor() + 1) return descoloreaLinea(linea);
    const bool enEdicion = lineaEnEdicion_;
    lineaMarcada_ = linea;
    coloreaLinea(linea);
    lineaEnEdicion_ = enEdicion;
}

// --- Changes of the caret's line ---

std::optional<std::int32_t> LineasEditadas::alCambiarLaSeleccion(PasosFirmes& paso) {
    return cambiaDeLinea(false, paso);
}

/// `cortada`: a change of the text that began on the line left took the caret away.
std::optional<std::int32_t> LineasEditadas::cambiaDeLinea(bool cortada, PasosFirmes& paso) {
    const std::int32_t linea = lineaDelCursor();
    if (linea == lineaAnterior_) return std::nullopt;
    coloreaLoDejado(lineaEnEdicion_ || cortada, paso);
    lineaEnEdicion_ = false;
    lineaAnterior_ = linea;
    posicionAnterior_ = caja_->inicioSeleccion();
    return linea;
}

void LineasEditadas::coloreaLoDejado(bool dejada, PasosFirmes& paso) {
    if (!recoloreaRango_ && !dejada) return;
    if (nadaEspera()) return;
    const TextoOculto oculto(colocacion_);
    const std::int32_t cursor = caja_->inicioSeleccion();
    if (recoloreaRango_) paso([&] { coloreaRango(posicionAnterior_, cursor, ninguna); });
    if (dejada) paso([&] { coloreaLinea(lineaAnterior_ + 1); });
}

/// The range begins where the caret came to its line, unless what is pasted is to stand before that.
void LineasEditadas::vaAPegar() {
    recoloreaRango_ = true;
    posicionAnterior_ = std::min(posicionAnterior_, caja_->inicioDeLinea(lineaDelCursor()));
    caja_->ponColorSeleccion(0);
}

/// The caret's line counts from 1, the remembered one from 0: the mark is set unless the caret stands exactly
/// one line below it. Colouring one range too many does no harm.
void LineasEditadas::esperaRangoSiCambioDeLinea() {
    if (lineaAnterior_ != numeroDeLinea(lineaDelCursor())) recoloreaRango_ = true;
}

void LineasEditadas::alPerderElFoco() {
    if (!lineaEnEdicion_) return;
    lineaEnEdicion_ = false;
    coloreaLinea(numeroDeLinea(lineaDelCursor()));
}

} // namespace norvik::inline v0_2
