// SPDX-License-Identifier: MIT

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/clasico/siguientes.hpp"
#include "norvik/grammar/exacto/conjuntos.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <algorithm>

// The sets of a grammar as its operations show them: by name, with texts. The computations work on numbers.
namespace norvik::inline v0_2 {

namespace {

std::int16_t posicionDe(std::u16string_view nombre, const std::vector<ConjuntoNumerado>& lista,
                        const ReglasPartidas& reglas) {
    const auto sitio = std::find_if(lista.begin(), lista.end(), [&](const ConjuntoNumerado& conjunto) {
        return reglas.texto(conjunto.nombre) == nombre;
    });
    return sitio == lista.end() ? std::int16_t{0} : a16(sitio - lista.begin() + 1);
}

bool quedan(const std::vector<bool>& pendientes) {
    return std::find(pendientes.begin(), pendientes.end(), true) != pendientes.end();
}

void insertaTextos(const ReglasPartidas& reglas, const std::vector<Simbolo>& simbolos, conjunto& conj) {
    for (const Simbolo simbolo : simbolos) conj.insertar(std::u16string(reglas.texto(simbolo)));
}

std::vector<conjunto> enTextos(const ReglasPartidas& reglas, const std::vector<ConjuntoNumerado>& conjuntos) {
    std::vector<conjunto> lista(conjuntos.size());
    for (std::size_t i = 0; i < conjuntos.size(); ++i) {
        lista[i].nombre = reglas.texto(conjuntos[i].nombre);
        insertaTextos(reglas, conjuntos[i].elementos, lista[i]);
    }
    return lista;
}

} // namespace

void gramatica::inicializaConjuntos() {
    valores_->conjuntos = Conjuntos();
    conTextos_.reset();
    *pendientes_ = clasico::Pendientes(partidas());
    valores_->tabla.olvidaSimbolos();
    cambia();
    valores_->automata = AutomataLR();
    numEstados_ = 0;
}

void gramatica::olvidaGenerado() {
    inicializaConjuntos();
    valores_->tabla.dimensiona(0, 0);
}

void gramatica::creaConjuntos() {
    inicializaConjuntos();
    try {
        if (metodo() == Metodo::Clasico) {
            clasico::calculaConjuntos(valores_->partidas, valores_->conjuntos, *pendientes_, cancelacion);
        } else {
            valores_->conjuntos =
                exacto::creaConjuntos(exacto::Producciones(valores_->partidas, cancelacion));
            *pendientes_ = clasico::Pendientes();
        }
    } catch (...) {
        olvidaGenerado();
        throw;
    }
}

void gramatica::creaPrimeros(std::u16string_view cadena, conjunto& conj, bool recursivo, std::int16_t regla) {
    const ReglasPartidas reglas(valores_->reglas, cadena);
    if (regla < 0 || regla > reglas.numReglas())
        throw SubindiceFueraDeIntervalo(u"la regla", regla, 0, reglas.numReglas());
    std::vector<Simbolo> cuerpo;
    paraCadaSimbolo(cadena, [&](std::u16string_view simbolo) { cuerpo.push_back(reglas.simbolo(simbolo)); });
    if (cuerpo.empty()) cuerpo.push_back(ReglasPartidas::vacio);
    clasico::CalculoPrimeros primeros(reglas, valores_->conjuntos, *pendientes_);
    if (conj.contieneCadenaVacia()) primeros.trabajo().inserta(ReglasPartidas::vacio);
    if (!primeros.recorre(cuerpo, recursivo, regla))
        throw Desbordamiento(u"La recursión de los primeros no termina en la cadena " +
                             std::u16string(cadena));
    insertaTextos(reglas, primeros.trabajo().elementos(), conj);
}

void gramatica::creaSiguientes(std::u16string_view variable, conjunto& conj, bool recursivo) {
    const ReglasPartidas reglas(valores_->reglas, variable);
    const Simbolo simbolo = reglas.simbolo(variable);
    clasico::CalculoPrimeros primeros(reglas, valores_->conjuntos, *pendientes_);
    clasico::CalculoSiguientes siguientes(reglas, valores_->conjuntos, *pendientes_, primeros);
    const bool conocida = simbolo != ReglasPartidas::sinSimbolo;
    if (conocida && recursivo && siguientes.terminados().terminado(simbolo))
        return insertaTextos(reglas, siguientes.terminados().elementos(simbolo), conj);
    if (conocida) siguientes.recorre(simbolo);
    insertaTextos(reglas, siguientes.trabajo().elementos(), conj);
    if (!recursivo) pendientes_->siguientes[static_cast<std::size_t>(pendientes_->actual)] = false;
    conj.eliminaCadenaVacia();
}

bool gramatica::contieneCadenaVacia(std::u16string_view variable) const {
    return std::ranges::any_of(valores_->reglas, [&](const Regla& regla) {
        if (regla.cabeza != variable || variable.empty()) return false;
        const std::u16string_view cuerpo = regla.cuerpo;
        return cuerpo.empty() || cuerpo.substr(0, cuerpo.find(u' ')) == cadenaVacia;
    });
}

bool gramatica::estaPendientePrimeros(std::u16string_view nombre) const {
    return numItemPrimeros(nombre) == 0;
}

bool gramatica::estaPendienteSiguientes(std::u16string_view nombre) const {
    return numItemSiguientes(nombre) == 0;
}

std::int16_t gramatica::numItemPrimeros(std::u16string_view nombre) const {
    return posicionDe(nombre, valores_->conjuntos.primeros, valores_->partidas);
}

std::int16_t gramatica::numItemSiguientes(std::u16string_view nombre) const {
    return posicionDe(nombre, valores_->conjuntos.siguientes, valores_->partidas);
}

bool gramatica::quedanPrimerosPendientes() const {
    return quedan(pendientes_->primeros);
}

bool gramatica::quedanSiguientesPendientes() const {
    return quedan(pendientes_->siguientes);
}

const gramatica::ConjuntosConTextos& gramatica::conTextos() const {
    const std::lock_guard uno(haciendoTextos_);
    if (!conTextos_) {
        const auto& [primeros, siguientes, predict] = valores_->conjuntos;
        const ReglasPartidas& reglas = valores_->partidas;
        conTextos_ = {enTextos(reglas, primeros), enTextos(reglas, siguientes), enTextos(reglas, predict)};
    }
    return *conTextos_;
}

} // namespace norvik::inline v0_2
