// SPDX-License-Identifier: MIT

// What the control hands to a part as it stands, its properties above all.
#include "norvik/control/norvik.hpp"

#include "norvik/control/colorista.hpp"
#include "norvik/control/partesControl.hpp"
#include "norvik/control/pasosFirmes.hpp"
#include "norvik/control/tablaPropiedades.hpp"

#include <type_traits>

namespace norvik::inline v0_2 {

namespace {

consteval const Propiedad& fila(std::u16string_view nombre) {
    return *propiedadDeNombre(nombre);
}

} // namespace

// One that is only kept: what reads it, what sets it, its name.
// NOLINTBEGIN(bugprone-macro-parentheses): of types
#define NORVIK_PROPIEDAD(Lee, Pone, Nombre)                                                                  \
    Lee Norvik::Nombre() const {                                                                             \
        return partes_->propiedades.valor<std::remove_cvref_t<Lee>>(fila(u"" #Nombre));                      \
    }                                                                                                        \
    void Norvik::Nombre(Pone valor) {                                                                        \
        vivo()->propiedades.pon<std::remove_cvref_t<Lee>>(fila(u"" #Nombre), valor);                         \
    }
// NOLINTEND(bugprone-macro-parentheses)

std::u16string_view Norvik::GetTextoInvisible() const {
    return partes_->lector.textoInvisible().texto();
}

void Norvik::SetTextoInvisible(std::u16string_view texto) {
    partes_->lector.textoInvisible().ponTexto(texto);
}

const std::optional<Diagnostico>& Norvik::GetDiagnostico() const {
    return partes_->conductor.diagnostico();
}

std::int16_t Norvik::LineaActual() const {
    return partes_->edicion.lineaActual();
}

std::int32_t Norvik::ColumnaActual() const {
    return partes_->edicion.columnaActual();
}

std::int32_t Norvik::TotalLineas() const {
    return partes_->lineas.numLineas();
}

void Norvik::InicializaUndosYRedos() {
    vivo()->historial.InicializaUndosYRedos();
}

void Norvik::Undo() {
    const auto partes = vivo();
    partes->edicion.conAviso([&] { partes->historial.Undo(); });
}

void Norvik::Redo() {
    const auto partes = vivo();
    partes->edicion.conAviso([&] { partes->historial.Redo(); });
}

bool Norvik::puedeDeshacer() const {
    return partes_->historial.puedeDeshacer();
}

bool Norvik::puedeRehacer() const {
    return partes_->historial.puedeRehacer();
}

void Norvik::restauraPropiedades(const BolsaPropiedades& bolsa) {
    const auto partes = vivo();
    PasosFirmes paso;
    paso([&] { partes->propiedades.restaura(bolsa); });
    paso([&] { partes->contenedor->opcionesRestauradas(); });
    paso.acaba();
}

void Norvik::guardaPropiedades(BolsaPropiedades& bolsa) const {
    partes_->propiedades.guarda(bolsa);
}

void Norvik::Acerca() {
    partes_->contenedor->muestraAcerca();
}

void Norvik::MuestraInforme() {
    partes_->contenedor->muestraInforme();
}

void Norvik::redimensiona() {
    partes_->colocacion.colocaControles();
}

void Norvik::tabulaAtras() {
    vivo()->edicion.quitaSangria();
}

void Norvik::tabuladorEnfocado() {
    vivo()->edicion.tabula();
}

const Opciones& Norvik::opciones() const {
    return partes_->opciones;
}

Lenguaje Norvik::lenguaje() {
    return partes_->lenguaje.dame();
}

std::unique_ptr<Colorista> Norvik::colorista() {
    return partes_->lenguaje.colorista();
}

void Norvik::tomaColores(std::span<const TramoDeColor> tramos) {
    vivo()->lineas.tomaColores(tramos);
}

const std::vector<Literal>* Norvik::literales() {
    return vivo()->coloresAlDia.literales();
}

void Norvik::reemplaza(std::int32_t inicio, std::int32_t longitud, std::u16string_view nuevo) {
    const auto partes = vivo();
    partes->edicion.conAviso([&] { partes->historial.sustituye(inicio, longitud, nuevo); });
}

const Ayudas& Norvik::ayudas() const {
    return partes_->ayudas;
}

void Norvik::ponAyudas(const Ayudas& ayudas) {
    vivo()->ponAyudas(ayudas);
}

void Norvik::Text(std::u16string_view texto) {
    vivo()->propiedades.ponText(texto);
}

std::u16string Norvik::SelFontName() const {
    return partes_->caja->nombreFuenteSeleccion();
}

const Fuente& Norvik::Font() const {
    return partes_->caja->fuente();
}

void Norvik::Font(const Fuente& fuente) {
    vivo()->propiedades.ponFont(fuente);
}

bool Norvik::Borde3D() const {
    return partes_->opciones.borde3D;
}

void Norvik::Borde3D(bool valor) {
    vivo()->propiedades.ponBorde3D(valor);
}

bool Norvik::LeftBorderVisible() const {
    return partes_->opciones.leftBorderVisible;
}

void Norvik::LeftBorderVisible(bool valor) {
    vivo()->propiedades.ponLeftBorderVisible(valor);
}

std::int16_t Norvik::MargenIzquierdo() const {
    return partes_->opciones.margenIzquierdo;
}

void Norvik::MargenIzquierdo(std::int16_t twips) {
    vivo()->propiedades.ponMargenIzquierdo(twips);
}

bool Norvik::HideSelection() const {
    return partes_->opciones.hideSelection;
}

void Norvik::HideSelection(bool valor) {
    vivo()->propiedades.ponHideSelection(valor);
}

NORVIK_PROPIEDAD(bool, bool, LenguajeSensible)
NORVIK_PROPIEDAD(bool, bool, AutoCorreccion)
NORVIK_PROPIEDAD(bool, bool, AutoTAB)
NORVIK_PROPIEDAD(bool, bool, MarcarErrores)
NORVIK_PROPIEDAD(bool, bool, MuestraMensajesDeError)
NORVIK_PROPIEDAD(bool, bool, Colorear)
NORVIK_PROPIEDAD(bool, bool, AutoNumero)
NORVIK_PROPIEDAD(std::int16_t, std::int16_t, EspaciosXTAB)
NORVIK_PROPIEDAD(const std::u16string&, std::u16string_view, NomLenguaje)
NORVIK_PROPIEDAD(const std::u16string&, std::u16string_view, ContenidoG)
NORVIK_PROPIEDAD(const std::u16string&, std::u16string_view, CodigoPrueba)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorPR)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorOperadores)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorComentarios)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorEtiquetas)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorNumeros)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorError)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorCadena)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorCaracter)
NORVIK_PROPIEDAD(std::int32_t, std::int32_t, ColorFechas)

gramatica& Norvik::Gramatica() {
    return partes_->laGramatica;
}

pilaTokens& Norvik::Lexico() {
    return partes_->lexico;
}

const SignosDelBorde::PorIndice& Norvik::signos() const {
    return partes_->signos.signos();
}

const Historial& Norvik::historial() const {
    return partes_->historial;
}

#undef NORVIK_PROPIEDAD

} // namespace norvik::inline v0_2
