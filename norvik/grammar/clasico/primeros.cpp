// SPDX-License-Identifier: MIT

#include "norvik/grammar/clasico/primeros.hpp"

#include "norvik/base/errores.hpp"

#include <algorithm>
#include <string>
#include <utility>

// FIRST sets, head by head. A head's set is computed afresh in every pass over the rules, entering the rules
// of symbols whose sets are not finished, until a pass leaves its flag clear; the set is then finished as it
// stands. This is not the least fixpoint: a set may be finished before those it draws on, and Ø stays in the
// set of a string whose later symbols are not nullable.
//
// The recursion as written enters a rule again and again, 2^n times on n right-recursive levels. But while
// one set is worked on, no set becomes finished, so what a call on a rule does depends only on the rule and
// on whether the set contains Ø when it begins; and all it does is to insert symbols and to set flags. A
// second call in the same situation adds nothing (its effect on the flag is remembered); one that begins
// while the first has not ended means that the recursion never ends. Each situation is thus entered once:
// a set costs O(size of the grammar) a pass. The recursion runs on a stack of its own.
//
// A ladder of n levels finishes one set a pass. A head whose last body begins with a pending symbol that
// stops the scan ends with its flag set, whatever its set holds: it is passed over, which is unobservable as
// long as no endless recursion can hide there.
namespace norvik::inline v0_2::clasico {

CalculoPrimeros::CalculoPrimeros(const ReglasPartidas& reglas, Conjuntos& conjuntos, Pendientes& pendientes,
                                 std::stop_token parada)
    : reglas_(reglas), conjuntos_(conjuntos), pendientes_(pendientes), parada_(std::move(parada)),
      terminados_(conjuntos.primeros, reglas.numSimbolos()), conVacia_(reglas.numSimbolos()),
      situaciones_(2 * static_cast<std::size_t>(reglas.numReglas()) + 2) {
    indexa();
    abre();
}

void CalculoPrimeros::indexa() {
    terminados_ = IndiceDeConjuntos(conjuntos_.primeros, reglas_.numSimbolos());
    for (const ConjuntoNumerado& conjunto : conjuntos_.primeros) anotaVacia(conjunto.nombre);
}

void CalculoPrimeros::anotaVacia(Simbolo nombre) {
    const auto& elementos = terminados_.elementos(nombre);
    conVacia_[static_cast<std::size_t>(nombre)] =
        std::find(elementos.begin(), elementos.end(), ReglasPartidas::vacio) != elementos.end();
}

void CalculoPrimeros::calcula() {
    enteras_ = hayRecursionIndirectaAlPrincipio(reglas_);
    while (std::ranges::find(pendientes_.primeros, true) != pendientes_.primeros.end()) {
        if (pasada()) continue;
        conjuntos_.primeros = creaPrimerosDeLibro(reglas_, parada_);
        pendientes_.primeros.assign(pendientes_.primeros.size(), false);
        indexa();
    }
}

/// False when the passes would never end: no set was finished, or a recursion does not end.
bool CalculoPrimeros::pasada() {
    const std::size_t antes = conjuntos_.primeros.size();
    for (int indice = 1; indice <= reglas_.numReglas(); ++indice) {
        if (!pendientes_.primeros[static_cast<std::size_t>(indice)]) continue;
        pendientes_.actual = indice;
        if (!enteras_ && noPuedeAcabar(indice)) continue;
        if (!procesa(indice)) return false;
    }
    return conjuntos_.primeros.size() > antes;
}

bool CalculoPrimeros::noPuedeAcabar(int indice) const {
    const Simbolo cabeza = reglas_.cabeza(indice);
    int ultima = indice;
    while (ultima < reglas_.numReglas() && reglas_.cabeza(ultima + 1) == cabeza) ++ultima;
    const Cuerpo cuerpo = reglas_.cuerpo(ultima);
    const Simbolo primero = cuerpo.front();
    return reglas_.esVariable(primero) && primero != cabeza && !terminados_.terminado(primero) &&
           (cuerpo.size() == 1 || !reglas_.contieneCadenaVacia(primero));
}

bool CalculoPrimeros::procesa(int indice) {
    abre();
    const Simbolo cabeza = reglas_.cabeza(indice);
    for (int k = indice; k <= reglas_.numReglas() && reglas_.cabeza(k) == cabeza; ++k)
        if (!recorre(reglas_.cuerpo(k), false, indice)) return false;
    if (!pendientes_.primeros[static_cast<std::size_t>(indice)]) termina(cabeza);
    return true;
}

void CalculoPrimeros::termina(Simbolo cabeza) {
    conjuntos_.primeros.push_back({cabeza, trabajo_.elementos()});
    terminados_.anota(conjuntos_.primeros.size() - 1);
    anotaVacia(cabeza);
}

void CalculoPrimeros::abre() {
    trabajo_.vacia(reglas_.numSimbolos());
    sumados_.vacia(reglas_.numSimbolos());
    ++turno_;
}

bool CalculoPrimeros::empiezaVacia(Simbolo simbolo) const {
    return simbolo == ReglasPartidas::vacio ||
           (reglas_.esVariable(simbolo) && conVacia_[static_cast<std::size_t>(simbolo)]);
}

bool CalculoPrimeros::recorre(Cuerpo cuerpo, bool recursivo, int indice) {
    if (recursivo && indice != 0 && indice == pendientes_.actual) return true;
    exigeSeguir();
    pila_.clear();
    pila_.emplace_back(cuerpo, indice, recursivo, 0U);
    while (!pila_.empty()) {
        Marco& marco = pila_.back();
        if (marco.hijo < marco.finHijos) {
            if (!entra(marco)) return false;
        } else if (avanza(marco)) {
            cierra();
        }
    }
    return true;
}

/// Enters the next rule of the pending symbol; false when it is already being scanned in this situation.
bool CalculoPrimeros::entra(Marco& padre) {
    const auto regla = padre.hijo++;
    const std::size_t numero =
        2 * static_cast<std::size_t>(regla) + (trabajo_.contiene(ReglasPartidas::vacio) ? 1 : 0);
    Situacion& situacion = situaciones_[numero];
    if (situacion.turno != turno_) situacion = {turno_, Progreso::Nueva};
    switch (situacion.progreso) {
    case Progreso::EnCurso:
        return false;
    case Progreso::Hecha:
        return true;
    case Progreso::HechaConMarca:
        marca(padre, pendientes_.actual);
        return true;
    case Progreso::Nueva:
        break;
    }
    situacion.progreso = Progreso::EnCurso;
    const int indice = reglas_.primera(padre.cuerpo[padre.posicion]);
    pila_.emplace_back(reglas_.cuerpo(regla), indice, true, numero);
    return true;
}

/// Scans on; true at the end of the scan, false when the rules of a pending symbol come first.
bool CalculoPrimeros::avanza(Marco& marco) {
    if (marco.enPendiente && !dejaPendiente(marco)) return true;
    for (;; ++marco.posicion) {
        const Simbolo simbolo = marco.cuerpo[marco.posicion];
        if (!reglas_.esVariable(simbolo) || terminados_.terminado(simbolo)) {
            sumaPrimeros(simbolo);
            if (!marco.esUltimo() && empiezaVacia(simbolo)) continue;
            acaba(marco);
            return true;
        }
        if (simbolo == reglas_.cabeza(marco.indice)) {
            if (marco.recursivo) marca(marco, pendientes_.actual);
            if (marco.esUltimo() || !trabajo_.contiene(ReglasPartidas::vacio)) return true;
            continue;
        }
        marco.limpio = false;
        marco.enPendiente = true;
        marco.hijo = reglas_.primera(simbolo);
        marco.finHijos = reglas_.fin(simbolo);
        // Coming back to the set under construction adds nothing.
        if (marco.hijo == pendientes_.actual) marco.hijo = marco.finHijos;
        return false;
    }
}

/// After the rules of a pending symbol: true when the scan goes on behind it.
bool CalculoPrimeros::dejaPendiente(Marco& marco) {
    marco.enPendiente = false;
    if (marco.esUltimo()) {
        if (!marco.recursivo) marca(marco, pendientes_.actual);
        return false;
    }
    if (marco.recursivo) marca(marco, pendientes_.actual);
    if (!reglas_.contieneCadenaVacia(marco.cuerpo[marco.posicion])) {
        marca(marco, marco.indice);
        return false;
    }
    ++marco.posicion;
    return true;
}

void CalculoPrimeros::acaba(const Marco& marco) {
    if (marco.indice != 0 && marco.indice == pendientes_.actual && marco.limpio && !marco.recursivo)
        pendientes_.primeros[static_cast<std::size_t>(marco.indice)] = false;
}

void CalculoPrimeros::cierra() {
    const std::size_t situacion = pila_.back().situacion;
    const bool marca = pila_.back().marca;
    pila_.pop_back();
    if (pila_.empty()) return;
    situaciones_[situacion].progreso = marca ? Progreso::HechaConMarca : Progreso::Hecha;
    if (marca) pila_.back().marca = true;
}

void CalculoPrimeros::marca(Marco& marco, int indice) {
    if (indice == 0) fallaSinRegla(marco.cuerpo[marco.posicion]);
    pendientes_.primeros[static_cast<std::size_t>(indice)] = true;
    if (indice == pendientes_.actual) marco.marca = true;
}

void CalculoPrimeros::fallaSinRegla(Simbolo simbolo) const {
    const std::u16string texto(reglas_.texto(simbolo));
    if (reglas_.primera(simbolo) == 0)
        throw SubindiceFueraDeIntervalo(u"Subíndice fuera de intervalo: " + texto +
                                        u" no es cabeza de ninguna regla");
    throw SubindiceFueraDeIntervalo(u"Subíndice fuera de intervalo: los primeros de " + texto +
                                    u" no están calculados");
}

void CalculoPrimeros::sumaPrimeros(Simbolo simbolo) {
    if (!reglas_.esVariable(simbolo)) return trabajo_.inserta(simbolo);
    if (sumados_.contiene(simbolo)) return;
    sumados_.inserta(simbolo);
    trabajo_.inserta(terminados_.elementos(simbolo));
}

} // namespace norvik::inline v0_2::clasico
