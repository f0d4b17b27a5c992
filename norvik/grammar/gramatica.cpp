// SPDX-License-Identifier: MIT

#include "norvik/grammar/gramatica.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/clasico/automata.hpp"
#include "norvik/grammar/clasico/conjuntos.hpp"
#include "norvik/grammar/clasico/tabla.hpp"
#include "norvik/grammar/exacto/automata.hpp"
#include "norvik/grammar/exacto/tabla.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <algorithm>
#include <utility>

// The prescribed operations on rules, automaton and table. gramaticaConjuntos.cpp has those on sets.
namespace norvik::inline v0_2 {

static_assert(gramatica::aceptar == TablaLR::aceptar && gramatica::maximoReglas == Reglas::maximo);

namespace {

AutomataLR automataDe(const ReglasPartidas& reglas, const OpcionesTabla& opciones,
                      const std::stop_token& cancelacion) {
    switch (opciones.metodo) {
    case Metodo::Clasico:
        return clasico::creaAutomata(reglas, cancelacion);
    case Metodo::Slr:
    case Metodo::Lalr:
        return exacto::creaAutomata(exacto::Producciones(reglas, cancelacion));
    case Metodo::Lr1:
        return exacto::creaAutomataLr1(exacto::Producciones(reglas, cancelacion), opciones.precedencias);
    }
    return {};
}

} // namespace

gramatica::gramatica()
    : valores_(std::make_unique<GramaticaLR>()), pendientes_(std::make_unique<clasico::Pendientes>()) {
    inicializaGramatica();
}

gramatica::~gramatica() = default;

// Rules and symbols ----------------------------------------------------------------------------------------

std::u16string gramatica::compila(std::u16string_view /*texto*/) const {
    return {};
}

void gramatica::inicializaGramatica() {
    valores_->reglas = Reglas();
    valores_->partidas = ReglasPartidas();
    valores_->tabla.ponInicial({});
    opciones_ = {};
    inicializaConjuntos();
}

void gramatica::copiaReglas(const gramatica& otra) {
    inicializaGramatica();
    valores_->reglas = otra.valores_->reglas;
    valores_->partidas = otra.valores_->partidas;
    valores_->tabla.ponInicial(valores_->reglas.en(1).cabeza);
    opciones_ = otra.opciones_;
    inicializaConjuntos();
}

void gramatica::intercambia(gramatica& otra) {
    std::swap(valores_, otra.valores_);
    std::swap(pendientes_, otra.pendientes_);
    std::swap(opciones_, otra.opciones_);
    std::swap(numEstados_, otra.numEstados_);
    std::swap(conTextos_, otra.conTextos_);
    edicion_ = otra.edicion_ = std::max(edicion_, otra.edicion_) + 1;
}

void gramatica::SetRegla(std::u16string_view cabeza, std::u16string_view cuerpo, std::int16_t /*codigo*/) {
    cambia();
    if (valores_->reglas.total() == 0) valores_->tabla.ponInicial(cabeza);
    valores_->reglas.guarda(cabeza, cuerpo);
}

void gramatica::SetSimbolo(std::u16string_view simbolo) {
    cambia();
    valores_->tabla.ponSimbolo(simbolo);
}

std::u16string_view gramatica::GetLeftRegla(std::int16_t regla) const {
    return recorta(valores_->reglas.en(regla).cabeza);
}

std::u16string_view gramatica::GetRightRegla(std::int16_t regla) const {
    return valores_->reglas.en(regla).cuerpo;
}

std::int16_t gramatica::getNumReglas() const {
    return valores_->reglas.numReglas();
}

std::u16string gramatica::GetElementoRegla(std::int16_t regla, std::int16_t posicion) const {
    std::u16string_view elemento; // the last one when there are not so many
    int quedan = std::max<int>(posicion, 0);
    paraCadaSimbolo(valores_->reglas.en(regla).cuerpo, [&](std::u16string_view simbolo) {
        if (quedan-- >= 0) elemento = simbolo;
    });
    return std::u16string(elemento);
}

std::int16_t gramatica::GetNumElementosRegla(std::int16_t regla) const {
    return valores_->reglas.en(regla).elementos;
}

const conjunto& gramatica::terminales() const {
    return valores_->tabla.simbolos().terminales;
}

const conjunto& gramatica::variables() const {
    return valores_->tabla.simbolos().variables;
}

const conjunto& gramatica::simbolos() const {
    return valores_->tabla.simbolos().todos;
}

std::int16_t gramatica::GetNumSimbolos() const {
    return simbolos().totalElementos();
}

std::int16_t gramatica::GetCodigoToken(std::u16string_view token) const {
    return token == u"EOF" ? valores_->tabla.codigoFin() : valores_->tabla.codigo(token);
}

std::int16_t gramatica::GetCodigoVariable(std::int16_t regla) const {
    return valores_->tabla.codigo(valores_->reglas.en(regla).cabeza);
}

std::u16string gramatica::chequeaGramatica() {
    return chequea(partidas());
}

std::u16string gramatica::chequeaGramatica() const {
    return chequea(ReglasPartidas(valores_->reglas));
}

std::int16_t gramatica::estaEnRegla(std::u16string_view cuerpo, std::u16string_view simbolo) {
    return norvik::estaEnRegla(cuerpo, simbolo);
}

std::u16string gramatica::dameReglaString(std::u16string_view cuerpo, std::int16_t punto) {
    return norvik::dameReglaString(cuerpo, punto);
}

const ReglasPartidas& gramatica::partidas() {
    if (valores_->partidas.numReglas() != valores_->reglas.total())
        valores_->partidas = ReglasPartidas(valores_->reglas);
    return valores_->partidas;
}

// Automaton ------------------------------------------------------------------------------------------------

void gramatica::creaAutomata() {
    valores_->automata = AutomataLR();
    numEstados_ = 0;
    try {
        valores_->automata = automataDe(partidas(), opciones_, cancelacion);
        numEstados_ = a16(valores_->automata.estados.size());
    } catch (...) {
        olvidaGenerado();
        throw;
    }
}

const std::vector<estadoAutomata>& gramatica::estadosAutomata() const {
    return valores_->automata.estados;
}

void gramatica::aniadeReglaAEstado(std::u16string_view variable, estadoAutomata& estado) const {
    const ReglasPartidas reglas(valores_->reglas, variable);
    const Simbolo simbolo = reglas.simbolo(variable);
    if (simbolo == ReglasPartidas::sinSimbolo) return;
    clasico::ConstructorAutomata(reglas, {}, 0).aniadeRegla(simbolo, estado);
}

void gramatica::aniadeReglasImplicitasAEstado(const Nucleo& nucleo, estadoAutomata& estado) const {
    const ReglasPartidas reglas(valores_->reglas);
    clasico::ConstructorAutomata(reglas, {}, 0).aniadeNucleo(nucleo, estado);
}

void gramatica::construyeTransiciones(const estadoAutomata& estado) {
    clasico::ConstructorAutomata constructor(partidas(), estadosAutomata(), numEstados_);
    constructor.construyeTransiciones(estado);
    numEstados_ = constructor.numEstados();
    valores_->automata.estados = std::move(constructor).estados();
}

std::int16_t gramatica::existeEstadoCon(const Nucleo& nucleo) const {
    const auto sitio = std::ranges::find_if(
        estadosAutomata(), [&](const estadoAutomata& estado) { return estado.poseeConjuntoEstados(nucleo); });
    return sitio == estadosAutomata().end() ? std::int16_t{-1} : sitio->getNumEstado();
}

std::u16string gramatica::dameSimboloSiguiente(const estadoAutomata& estado, std::int16_t item) const {
    return GetElementoRegla(estado.getReglaEstado(item), estado.getPosicionPunto(item));
}

// Table ----------------------------------------------------------------------------------------------------

void gramatica::creaTablaSLR() {
    if (!partidas().hayInicial()) return;
    cambia();
    try {
        valores_->tabla =
            metodo() == Metodo::Clasico
                ? clasico::creaTabla(valores_->partidas, valores_->conjuntos, valores_->automata,
                                     valores_->tabla.simbolos(), cancelacion)
                : exacto::creaTabla(exacto::Producciones(valores_->partidas, cancelacion), valores_->automata,
                                    opciones_, valores_->tabla.simbolos());
    } catch (...) {
        olvidaGenerado();
        throw;
    }
}

std::int16_t gramatica::GetElementoTablaSLR(std::int16_t estado, std::int16_t columna) const {
    return valores_->tabla.entrada(estado, columna);
}

std::span<const std::int16_t> gramatica::GetFilaTablaSLR(std::int16_t estado) const {
    return valores_->tabla.fila(estado);
}

void gramatica::SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) {
    valores_->tabla.dimensiona(filas, columnas);
    ++edicion_;
}

void gramatica::SetElementoTablaSLR(std::int16_t fila, std::int16_t columna, std::int16_t valor) {
    valores_->tabla.pon(fila, columna, valor);
    ++edicion_;
}

std::size_t gramatica::SetElementosTablaSLR(std::span<const CeldaSLR> celdas) {
    ++edicion_;
    std::size_t puestas = 0;
    try {
        for (const auto& [fila, columna, valor] : celdas) {
            valores_->tabla.pon(fila, columna, valor);
            ++puestas;
        }
    } catch (const ErrorNorvik&) { // of the one behind those
    }
    return puestas;
}

std::int16_t gramatica::GetDimensionFilasSLR() const {
    return valores_->tabla.celdas().filas();
}

std::int16_t gramatica::GetDimensionColumnasSLR() const {
    return valores_->tabla.celdas().columnas();
}

std::int16_t gramatica::conflicto(std::int16_t fila, std::int16_t columna) const {
    return valores_->tabla.conflicto(fila, columna);
}

std::u16string_view gramatica::encabezadoColumna(std::int16_t columna) const {
    return valores_->tabla.simbolo(columna);
}

std::int16_t gramatica::filasVigentes() const {
    return valores_->tabla.filasVigentes();
}

std::int16_t gramatica::columnasVigentes() const {
    return valores_->tabla.columnasVigentes();
}

bool gramatica::enConflicto(std::int16_t fila, std::int16_t columna) const {
    return valores_->tabla.enConflicto(fila, columna);
}

std::u16string gramatica::toStringEsperados(std::int16_t estado, const pilaTokens& lexico) const {
    std::u16string texto;
    bool primero = true;
    for (const std::u16string_view terminal : valores_->tabla.esperados(estado)) {
        if (!primero) texto += u", ";
        texto += lexico.toStringLexemasPorToken(terminal);
        primero = false;
    }
    return texto;
}

} // namespace norvik::inline v0_2
