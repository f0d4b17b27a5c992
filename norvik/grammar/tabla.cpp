#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/automata.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <algorithm>

// The automaton of a grammar, and the SLR table read off it (DeRemer 1971). A shift overwrites whatever its
// cell holds and says nothing; a reduction that finds its cell taken leaves it and is noted as a conflict.
namespace norvik {

// Automaton ------------------------------------------------------------------------------------------------

void gramatica::creaAutomata() {
    estadosAutomata_.clear();
    numEstados_ = 0;
    if (!hayReglaInicial()) return;
    try {
        construyeAutomata();
    } catch (...) {
        olvidaGenerado();
        throw;
    }
}

// State 1, which the table reaches from state 0 over the start symbol, is built apart and last; it has items
// only for a start symbol that is left-recursive.
void gramatica::construyeAutomata() {
    ConstructorAutomata constructor(partidas(), {}, 2);
    estadoAutomata inicial;
    inicial.setNumEstado(0);
    inicial.setInicial();
    constructor.aniadeRegla(partidas_.cabeza(1), inicial);
    constructor.construyeTransiciones(std::move(inicial));
    estadoAutomata aceptacion;
    aceptacion.setNumEstado(1);
    constructor.aniadeNucleo(nucleoInicial(), aceptacion);
    constructor.construyeTransiciones(std::move(aceptacion));
    numEstados_ = constructor.numEstados();
    estadosAutomata_ = std::move(constructor).estados();
    std::ranges::sort(estadosAutomata_, {}, &estadoAutomata::getNumEstado);
}

/// The left-recursive rules of the start symbol, with the dot behind it.
Nucleo gramatica::nucleoInicial() const {
    const Simbolo inicial = partidas_.cabeza(1);
    Nucleo nucleo;
    for (int regla = 1; regla <= partidas_.numReglas(); ++regla)
        if (partidas_.cabeza(regla) == inicial && partidas_.cuerpo(regla).front() == inicial)
            nucleo.push_back({static_cast<std::int16_t>(regla), 1});
    return nucleo;
}

void gramatica::aniadeReglaAEstado(std::u16string_view variable, estadoAutomata& estado) const {
    ReglasPartidas& reglas = partidas();
    const Simbolo simbolo = reglas.numera(variable);
    ConstructorAutomata(reglas, {}, 0).aniadeRegla(simbolo, estado);
}

void gramatica::aniadeReglasImplicitasAEstado(const Nucleo& nucleo, estadoAutomata& estado) const {
    ConstructorAutomata(partidas(), {}, 0).aniadeNucleo(nucleo, estado);
}

void gramatica::construyeTransiciones(const estadoAutomata& estado) {
    ConstructorAutomata constructor(partidas(), estadosAutomata_, numEstados_);
    constructor.construyeTransiciones(estado);
    numEstados_ = constructor.numEstados();
    estadosAutomata_ = std::move(constructor).estados();
}

std::int16_t gramatica::existeEstadoCon(const Nucleo& nucleo) const {
    const auto sitio =
        std::find_if(estadosAutomata_.begin(), estadosAutomata_.end(),
                     [&](const estadoAutomata& estado) { return estado.poseeConjuntoEstados(nucleo); });
    return sitio == estadosAutomata_.end() ? std::int16_t{-1} : sitio->getNumEstado();
}

std::u16string gramatica::dameSimboloSiguiente(const estadoAutomata& estado, std::int16_t item) const {
    return GetElementoRegla(estado.getReglaEstado(item), estado.getPosicionPunto(item));
}

// Table ----------------------------------------------------------------------------------------------------

void gramatica::creaTablaSLR() {
    if (!hayReglaInicial()) return;
    try {
        reuneSimbolos();
        const int ancho = terminales_.totalElementos() + 1 + variables_.totalElementos();
        TablaSLR tabla(a16(estadosAutomata_.size()), a16(ancho));
        TablaSLR conflictos = tabla;
        rellenaTabla(tabla, conflictos);
        tabla_ = std::move(tabla);
        conflictos_ = std::move(conflictos);
    } catch (...) {
        olvidaGenerado();
        throw;
    }
}

/// Terminals and heads in order of first occurrence, then all of them in column order.
void gramatica::reuneSimbolos() {
    const ReglasPartidas& reglas = partidas();
    cambia();
    std::vector<bool> vistos(reglas.numSimbolos());
    std::vector<bool> cabezas(reglas.numSimbolos());
    const auto inserta = [&](Simbolo simbolo, std::vector<bool>& yaEstan, conjunto& conj) {
        if (yaEstan[static_cast<std::size_t>(simbolo)]) return;
        yaEstan[static_cast<std::size_t>(simbolo)] = true;
        conj.insertar(std::u16string(reglas.texto(simbolo)));
    };
    for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
        if (reglas.cabeza(regla) == ReglasPartidas::sinSimbolo) continue;
        inserta(reglas.cabeza(regla), cabezas, variables_);
        for (const Simbolo simbolo : reglas.cuerpo(regla))
            if (!reglas.esVariable(simbolo) && simbolo != ReglasPartidas::vacio)
                inserta(simbolo, vistos, terminales_);
    }
    simbolos_.aniadeElementosConjunto(terminales_);
    simbolos_.insertar(u"$");
    simbolos_.aniadeElementosConjunto(variables_);
}

/// 0-based column of every symbol, -1 when it has none.
std::vector<int> gramatica::columnasDeSimbolos() const {
    std::vector<int> columnas(partidas_.numSimbolos());
    for (std::size_t i = 0; i < columnas.size(); ++i)
        columnas[i] = simbolos_.posicion(partidas_.texto(static_cast<Simbolo>(i))) - 1;
    return columnas;
}

void gramatica::rellenaTabla(TablaSLR& tabla, TablaSLR& conflictos) const {
    const std::vector<int> columnaDe = columnasDeSimbolos();
    const auto columna = [&](Simbolo simbolo) {
        const int c = columnaDe[static_cast<std::size_t>(simbolo)];
        if (c < 0) throw SubindiceFueraDeIntervalo();
        return static_cast<std::size_t>(c);
    };
    // A head in two runs of rules has two sets, and each of them reduces.
    std::vector<std::vector<std::size_t>> siguientes(partidas_.numSimbolos());
    for (const auto& [nombre, elementos] : conjuntos_.siguientes)
        for (const Simbolo simbolo : elementos)
            siguientes[static_cast<std::size_t>(nombre)].push_back(columna(simbolo));
    int numero = 0;
    std::vector<std::int16_t> fila(static_cast<std::size_t>(tabla.columnas()));
    for (const estadoAutomata& estado : estadosAutomata_) {
        ++numero;
        std::ranges::fill(fila, std::int16_t{0});
        for (std::size_t i = 0; i < estado.items().size(); ++i) {
            const auto [regla, punto] = estado.items()[i];
            const std::int16_t destino = estado.adyacentes()[i];
            if (destino != estadoAutomata::sinTransicion) {
                fila[columna(partidas_.cuerpo(regla)[static_cast<std::size_t>(punto)])] = destino;
                continue;
            }
            for (const std::size_t c : siguientes[static_cast<std::size_t>(partidas_.cabeza(regla))]) {
                if (fila[c] == 0)
                    fila[c] = static_cast<std::int16_t>(-regla);
                else
                    conflictos.pon(numero, static_cast<int>(c) + 1, regla);
            }
        }
        tabla.ponFila(numero, fila);
    }
}

void gramatica::SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) {
    tabla_ = TablaSLR(filas, columnas);
    ++edicion_;
}

void gramatica::SetElementoTablaSLR(std::int16_t fila, std::int16_t columna, std::int16_t valor) {
    tabla_.pon(fila, columna, valor);
    ++edicion_;
}
std::size_t gramatica::SetElementosTablaSLR(std::span<const CeldaSLR> celdas) {
    ++edicion_;
    std::size_t puestas = 0;
    try {
        for (const auto& [fila, columna, valor] : celdas) {
            tabla_.pon(fila, columna, valor);
            ++puestas;
        }
    } catch (const ErrorNorvik&) { // of the one behind those
    }
    return puestas;
}

std::int16_t gramatica::conflicto(std::int16_t fila, std::int16_t columna) const {
    const bool fuera =
        fila < 1 || fila > conflictos_.filas() || columna < 1 || columna > conflictos_.columnas();
    return fuera ? std::int16_t{0} : conflictos_.en(fila, columna);
}

std::u16string gramatica::toStringEsperados(std::int16_t estado, const pilaTokens& lexico) const {
    std::u16string texto;
    bool primero = true;
    for (std::int16_t columna = 1; columna <= terminales_.totalElementos(); ++columna) {
        // A loaded language counts "$" among its terminals.
        if (tabla_.en(estado + 1, columna) == 0 || simbolos_.simboloAt(columna) == u"$") continue;
        if (!primero) texto += u", ";
        texto += lexico.toStringLexemasPorToken(simbolos_.simboloAt(columna));
        primero = false;
    }
    return texto;
}

} // namespace norvik
