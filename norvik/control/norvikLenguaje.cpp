// SPDX-License-Identifier: MIT

// The control's language: loading it call by call, compiling it from a specification, parsing with it.

#include "norvik/control/norvik.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/partesControl.hpp"

namespace norvik::inline v0_2 {

// --- Loading ---

void Norvik::SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken,
                   std::int32_t tipoToken, std::u16string_view pseudoToken, std::int32_t baseToken,
                   std::int32_t colorTexto) {
    partes_->SetER(expresion, nomER, esToken, a16(tipoToken, u"el tipo del token"), pseudoToken, baseToken,
                   colorTexto);
}

void Norvik::SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int32_t tipoToken,
                       std::u16string_view pseudoToken, std::int32_t baseToken, std::int32_t /*colorTexto*/) {
    partes_->SetPatron(patron, nomER, a16(tipoToken, u"el tipo del token"), pseudoToken, baseToken);
}

void Norvik::DistingueMayusculas() {
    const auto partes = vivo();
    partes->compruebaQueNadaCarga();
    partes->lexico.distingueMayusculas = true;
    LenguajeSensible(true);
    partes->compruebaQueSigue();
}

void Norvik::SetPalabraReservada(std::u16string_view lexema, std::u16string& token,
                                 std::u16string_view pseudoToken) {
    if (token.empty()) token = aMinusculas(lexema);
    partes_->SetPalabraReservada(lexema, token, pseudoToken);
}

void Norvik::SetPalabraReservada(std::u16string_view lexema, std::u16string_view token,
                                 std::u16string_view pseudoToken) {
    std::u16string variable(token);
    SetPalabraReservada(lexema, variable, pseudoToken);
}

void Norvik::SetOperador(std::u16string_view lexema, std::u16string_view token,
                         std::u16string_view pseudoToken) {
    partes_->SetOperador(lexema, token, pseudoToken);
}

void Norvik::SetComentarioLinea(std::u16string_view lexema) {
    SetER(std::u16string(lexema).append(u".*(\\n|$)"), u"comentario", true, Norvik_ComentarioLinea);
}

void Norvik::SetRegla(std::u16string_view regla, std::int16_t numIdentificacion) {
    partes_->compruebaQueNadaCarga();
    const auto [cabeza, cuerpo] = parteRegla(regla);
    Gramatica().SetRegla(cabeza, cuerpo, numIdentificacion);
}

void Norvik::InsertarSimboloGramatica(std::u16string_view simboloG) {
    partes_->compruebaQueNadaCarga();
    Gramatica().SetSimbolo(simboloG);
}

void Norvik::SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) {
    partes_->compruebaQueNadaCarga();
    Gramatica().SetDimensionTablaSLR(filas, columnas);
}

void Norvik::SetElementoTablaSLR(std::int16_t posFilas, std::int16_t posColumnas, std::int16_t valorSLR) {
    partes_->compruebaQueNadaCarga();
    Gramatica().SetElementoTablaSLR(posFilas, posColumnas, valorSLR);
}

std::size_t Norvik::SetElementosTablaSLR(std::span<const CeldaSLR> celdas) {
    const auto partes = vivo();
    partes->compruebaQueNadaCarga();
    const std::size_t puestas = partes->laGramatica.SetElementosTablaSLR(celdas);
    partes->avisaOtroLenguaje();
    return puestas;
}

void Norvik::BorraLenguaje() {
    partes_->compruebaQueNadaCarga();
    Lexico().Inicializa();
    partes_->contenedor->otroLenguaje();
}

void Norvik::OlvidaLenguaje() {
    const auto partes = vivo();
    partes->compruebaQueNadaCarga();
    partes->lexico.Inicializa();
    partes->laGramatica.inicializaGramatica();
    partes->laGramatica.SetDimensionTablaSLR(0, 0);
    partes->contenedor->otroLenguaje();
}

// --- Compiling ---

bool Norvik::CargaGramatica(std::u16string_view codGramatica) {
    return vivo()->CargaGramatica(codGramatica);
}

bool Norvik::GeneraCompilador() {
    return vivo()->GeneraCompilador();
}

// --- Parsing ---

bool Norvik::ConstruyeArbolSintactico() {
    return vivo()->conductor.ConstruyeArbolSintactico();
}

bool Norvik::ConstruyeArbolSintacticoTextoInvisible() {
    return vivo()->conductor.ConstruyeArbolSintacticoTextoInvisible();
}

Arbol& Norvik::GetArbolSintactico() {
    return partes_->conductor.GetArbolSintactico();
}

std::int16_t Norvik::GetCodigoError() const {
    return partes_->conductor.GetCodigoError();
}

const std::u16string& Norvik::GetmensajeError() const {
    return partes_->conductor.GetmensajeError();
}

std::u16string Norvik::EjecutaCodigo(std::u16string_view /*codigoAEjecutar*/) {
    return {};
}

void Norvik::InicializaLecturaTokens() {
    partes_->lector.InicializaLecturaTokens();
}

parLT Norvik::Lex() {
    return partes_->lector.Lex();
}

parLT Norvik::LexTextoInvisible() {
    return partes_->lector.LexTextoInvisible();
}

std::int16_t Norvik::LineaToken() const {
    return partes_->lector.LineaToken();
}

std::int32_t Norvik::ColumnaToken() const {
    return partes_->lector.ColumnaToken();
}

std::u16string Norvik::DameStringTokenLeido() const {
    return partes_->lector.DameStringTokenLeido();
}

std::u16string Norvik::DameStringLineaColumnaToken() const {
    return partes_->lector.DameStringLineaColumnaToken();
}

} // namespace norvik::inline v0_2
