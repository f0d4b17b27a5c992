#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/grammar/siguientes.hpp"

#include <algorithm>

// The sets of a grammar as its operations show them: by name, with texts. The computations work on numbers.
namespace norvik {

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

} // namespace

void gramatica::inicializaConjuntos() {
    const ReglasPartidas& reglas = partidas();
    conjuntos_ = ConjuntosGramatica();
    conjuntos_.pendientePrimeros.resize(maximoReglas + 1);
    for (int regla = 1; regla <= reglas.numReglas(); ++regla)
        conjuntos_.pendientePrimeros[static_cast<std::size_t>(regla)] = reglas.abreTramo(regla);
    conjuntos_.pendienteSiguientes = conjuntos_.pendientePrimeros;
    terminales_.borrarTodo();
    variables_.borrarTodo();
    simbolos_.borrarTodo();
    cambia();
    estadosAutomata_.clear();
    numEstados_ = 0;
}

void gramatica::olvidaGenerado() {
    inicializaConjuntos();
    tabla_ = TablaSLR();
    conflictos_ = TablaSLR();
}

void gramatica::creaConjuntos() {
    inicializaConjuntos();
    try {
        const Simbolo fin = partidas().numera(u"$");
        CalculoPrimeros primeros(partidas_, conjuntos_);
        primeros.calcula();
        CalculoSiguientes siguientes(partidas_, conjuntos_, primeros);
        siguientes.calcula(fin);
        calculaPredict(partidas_, conjuntos_, primeros, siguientes.terminados());
    } catch (...) {
        olvidaGenerado();
        throw;
    }
}

void gramatica::creaPrimeros(std::u16string_view cadena, conjunto& conj, bool recursivo, std::int16_t regla) {
    ReglasPartidas& reglas = partidas();
    if (regla < 0 || regla > reglas.numReglas()) throw SubindiceFueraDeIntervalo();
    std::vector<Simbolo> cuerpo;
    paraCadaSimbolo(cadena, [&](std::u16string_view simbolo) { cuerpo.push_back(reglas.numera(simbolo)); });
    if (cuerpo.empty()) cuerpo.push_back(ReglasPartidas::vacio);
    CalculoPrimeros primeros(reglas, conjuntos_);
    if (conj.contieneCadenaVacia()) primeros.trabajo().inserta(ReglasPartidas::vacio);
    if (!primeros.recorre(cuerpo, recursivo, regla))
        throw Desbordamiento(u"La recursión de los primeros no termina");
    insertaTextos(primeros.trabajo().elementos(), conj);
}

void gramatica::creaSiguientes(std::u16string_view variable, conjunto& conj, bool recursivo) {
    ReglasPartidas& reglas = partidas();
    const Simbolo simbolo = reglas.numera(variable);
    CalculoPrimeros primeros(reglas, conjuntos_);
    CalculoSiguientes siguientes(reglas, conjuntos_, primeros);
    if (recursivo && siguientes.terminados().terminado(simbolo))
        return insertaTextos(siguientes.terminados().elementos(simbolo), conj);
    siguientes.recorre(simbolo);
    insertaTextos(siguientes.trabajo().elementos(), conj);
    if (!recursivo) conjuntos_.pendienteSiguientes[static_cast<std::size_t>(conjuntos_.indiceActual)] = false;
    conj.eliminaCadenaVacia();
}

bool gramatica::contieneCadenaVacia(std::u16string_view variable) const {
    ReglasPartidas& reglas = partidas();
    return reglas.contieneCadenaVacia(reglas.numera(variable));
}

bool gramatica::estaPendientePrimeros(std::u16string_view nombre) const {
    return numItemPrimeros(nombre) == 0;
}

bool gramatica::estaPendienteSiguientes(std::u16string_view nombre) const {
    return numItemSiguientes(nombre) == 0;
}

std::int16_t gramatica::numItemPrimeros(std::u16string_view nombre) const {
    return posicionDe(nombre, conjuntos_.primeros, partidas_);
}

std::int16_t gramatica::numItemSiguientes(std::u16string_view nombre) const {
    return posicionDe(nombre, conjuntos_.siguientes, partidas_);
}

bool gramatica::quedanPrimerosPendientes() const {
    return quedan(conjuntos_.pendientePrimeros);
}

bool gramatica::quedanSiguientesPendientes() const {
    return quedan(conjuntos_.pendienteSiguientes);
}

std::vector<conjunto> gramatica::primeros() const {
    return conTextos(conjuntos_.primeros);
}

std::vector<conjunto> gramatica::siguientes() const {
    return conTextos(conjuntos_.siguientes);
}

std::vector<conjunto> gramatica::predict() const {
    return conTextos(conjuntos_.predict);
}

std::vector<conjunto> gramatica::conTextos(const std::vector<ConjuntoNumerado>& conjuntos) const {
    std::vector<conjunto> lista(conjuntos.size());
    for (std::size_t i = 0; i < conjuntos.size(); ++i) {
        lista[i].nombre = partidas_.texto(conjuntos[i].nombre);
        insertaTextos(conjuntos[i].elementos, lista[i]);
    }
    return lista;
}

void gramatica::insertaTextos(const std::vector<Simbolo>& simbolos, conjunto& conj) const {
    for (const Simbolo simbolo : simbolos) conj.insertar(std::u16string(partidas_.texto(simbolo)));
}

} // namespace norvik
