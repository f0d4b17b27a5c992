// SPDX-License-Identifier: MIT

// What the control hands to a part as it stands, its properties above all.
#include "norvik/control/norvik.hpp"

#include "norvik/control/partesControl.hpp"

namespace norvik::inline v0_2 {

template <typename Tipo, typename Valor>
void Norvik::pon(Tipo& campo, const Valor& valor, std::u16string_view nombre) {
    vivo()->propiedades.pon(campo, valor, nombre);
}

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
    vivo()->historial.Undo();
}

void Norvik::Redo() {
    vivo()->historial.Redo();
}

void Norvik::restauraPropiedades(const BolsaPropiedades& bolsa) {
    vivo()->propiedades.restaura(bolsa);
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

void Norvik::tabuladorEnfocado() {
    vivo()->edicion.tabula();
}

const Opciones& Norvik::opciones() const {
    return partes_->opciones;
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

bool Norvik::LenguajeSensible() const {
    return partes_->opciones.lenguajeSensible;
}

void Norvik::LenguajeSensible(bool valor) {
    pon(partes_->opciones.lenguajeSensible, valor, u"LenguajeSensible");
}

bool Norvik::AutoCorreccion() const {
    return partes_->opciones.autoCorreccion;
}

void Norvik::AutoCorreccion(bool valor) {
    pon(partes_->opciones.autoCorreccion, valor, u"AutoCorreccion");
}

std::int16_t Norvik::EspaciosXTAB() const {
    return partes_->opciones.espaciosXTAB;
}

void Norvik::EspaciosXTAB(std::int16_t cuantos) {
    pon(partes_->opciones.espaciosXTAB, cuantos, u"EspaciosXTAB");
}

bool Norvik::AutoTAB() const {
    return partes_->opciones.autoTAB;
}

void Norvik::AutoTAB(bool valor) {
    pon(partes_->opciones.autoTAB, valor, u"AutoTAB");
}

bool Norvik::MarcarErrores() const {
    return partes_->opciones.marcarErrores;
}

void Norvik::MarcarErrores(bool valor) {
    pon(partes_->opciones.marcarErrores, valor, u"MarcarErrores");
}

bool Norvik::MuestraMensajesDeError() const {
    return partes_->opciones.muestraMensajesDeError;
}

void Norvik::MuestraMensajesDeError(bool valor) {
    pon(partes_->opciones.muestraMensajesDeError, valor, u"MuestraMensajesDeError");
}

bool Norvik::Colorear() const {
    return partes_->opciones.colorear;
}

void Norvik::Colorear(bool valor) {
    pon(partes_->opciones.colorear, valor, u"Colorear");
}

const std::u16string& Norvik::NomLenguaje() const {
    return partes_->opciones.nombreLenguaje;
}

void Norvik::NomLenguaje(std::u16string_view nombre) {
    pon(partes_->opciones.nombreLenguaje, nombre, u"NombreLenguaje");
}

bool Norvik::AutoNumero() const {
    return partes_->lexico.autoNumber;
}

void Norvik::AutoNumero(bool valor) {
    pon(partes_->lexico.autoNumber, valor, u"AutoNumero");
}

const std::u16string& Norvik::ContenidoG() const {
    return partes_->opciones.contenidoG;
}

void Norvik::ContenidoG(std::u16string_view especificacion) {
    pon(partes_->opciones.contenidoG, especificacion, u"ContenidoG");
}

const std::u16string& Norvik::CodigoPrueba() const {
    return partes_->opciones.codigoPrueba;
}

void Norvik::CodigoPrueba(std::u16string_view texto) {
    pon(partes_->opciones.codigoPrueba, texto, u"CodigoPrueba");
}

std::int32_t Norvik::ColorPR() const {
    return partes_->lexico.colorPalabrasReservadas;
}

void Norvik::ColorPR(std::int32_t color) {
    pon(partes_->lexico.colorPalabrasReservadas, color, u"ColorPR");
}

std::int32_t Norvik::ColorOperadores() const {
    return partes_->lexico.ColorOperadores;
}

void Norvik::ColorOperadores(std::int32_t color) {
    pon(partes_->lexico.ColorOperadores, color, u"ColorOperadores");
}

std::int32_t Norvik::ColorComentarios() const {
    return partes_->lexico.ColorComentarios;
}

void Norvik::ColorComentarios(std::int32_t color) {
    pon(partes_->lexico.ColorComentarios, color, u"ColorComentarios");
}

std::int32_t Norvik::ColorEtiquetas() const {
    return partes_->lexico.ColorEtiquetas;
}

void Norvik::ColorEtiquetas(std::int32_t color) {
    pon(partes_->lexico.ColorEtiquetas, color, u"ColorEtiquetas");
}

std::int32_t Norvik::ColorNumeros() const {
    return partes_->lexico.ColorNumeros;
}

void Norvik::ColorNumeros(std::int32_t color) {
    pon(partes_->lexico.ColorNumeros, color, u"ColorNumeros");
}

std::int32_t Norvik::ColorError() const {
    return partes_->lexico.ColorError;
}

void Norvik::ColorError(std::int32_t color) {
    pon(partes_->lexico.ColorError, color, u"ColorError");
}

std::int32_t Norvik::ColorCadena() const {
    return partes_->lexico.ColorCadena;
}

void Norvik::ColorCadena(std::int32_t color) {
    pon(partes_->lexico.ColorCadena, color, u"ColorCadena");
}

std::int32_t Norvik::ColorCaracter() const {
    return partes_->lexico.ColorCaracter;
}

void Norvik::ColorCaracter(std::int32_t color) {
    pon(partes_->lexico.ColorCaracter, color, u"ColorCaracter");
}

std::int32_t Norvik::ColorFechas() const {
    return partes_->lexico.ColorFechas;
}

void Norvik::ColorFechas(std::int32_t color) {
    pon(partes_->lexico.ColorFechas, color, u"ColorFechas");
}

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

} // namespace norvik::inline v0_2
