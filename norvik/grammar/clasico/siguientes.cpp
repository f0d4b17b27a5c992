// SPDX-License-Identifier: MIT

#include "norvik/grammar/clasico/siguientes.hpp"

// FOLLOW sets: for each head a depth-first walk over the heads whose FOLLOW it takes over, cut where it comes
// back to one already visited (that one then contributes nothing: no fixpoint). Sets finished before are
// taken whole. What a head draws from the bodies depends on nothing but the FIRST sets, so it is gathered
// once per head, and a walk only joins lists: O(heads) lists a walk.
//
// All calls of a walk may insert into one set: an inner call's own set would be appended to the outer one,
// which nothing else touches meanwhile, so the order is the same.
//
// Occurrences are those that `estaEnRegla` finds one after the other in the text of a body. In
// terms of symbols: every occurrence before the last symbol; and the last symbol, unless a symbol strictly
// between it and the one that begins the rest of the text has the name looked for as a proper prefix (the
// text is compared at the first place only where a blank and the name stand).
namespace norvik::inline v0_2::clasico {

CalculoSiguientes::CalculoSiguientes(const ReglasPartidas& reglas, Conjuntos& conjuntos,
                                     Pendientes& pendientes, CalculoPrimeros& primeros)
    : reglas_(reglas), conjuntos_(conjuntos), pendientes_(pendientes), primeros_(primeros),
      terminados_(conjuntos.siguientes, reglas.numSimbolos()), apariciones_(reglas.numSimbolos()),
      aportaciones_(reglas.numSimbolos()) {
    trabajo_.vacia(reglas.numSimbolos());
    for (int regla = 1; regla <= reglas.numReglas(); ++regla)
        if (reglas.cabeza(regla) != ReglasPartidas::sinSimbolo) buscaApariciones(regla);
}

void CalculoSiguientes::buscaApariciones(int regla) {
    const Cuerpo cuerpo = reglas_.cuerpo(regla);
    for (std::size_t i = 0; i < cuerpo.size(); ++i) {
        if (reglas_.primera(cuerpo[i]) == 0) continue;
        auto& apariciones = apariciones_[static_cast<std::size_t>(cuerpo[i])];
        const bool repetida = !apariciones.empty() && apariciones.back().regla == regla;
        const std::size_t desde = repetida ? apariciones.back().posicion + 1 : 0;
        if (i + 1 == cuerpo.size() && tapada(cuerpo, desde, cuerpo[i])) continue;
        apariciones.push_back({regla, i});
    }
}

/// The last symbol of a body is not found when the search starts at `desde`.
bool CalculoSiguientes::tapada(Cuerpo cuerpo, std::size_t desde, Simbolo simbolo) const {
    for (std::size_t i = desde + 1; i + 1 < cuerpo.size(); ++i)
        if (reglas_.texto(cuerpo[i]).starts_with(reglas_.texto(simbolo))) return true;
    return false;
}

void CalculoSiguientes::calcula() {
    for (int indice = 1; indice <= reglas_.numReglas(); ++indice) {
        if (!pendientes_.siguientes[static_cast<std::size_t>(indice)]) continue;
        pendientes_.actual = indice;
        trabajo_.vacia(reglas_.numSimbolos());
        if (indice == 1) trabajo_.inserta(ReglasPartidas::finTexto);
        recorre(reglas_.cabeza(indice));
        pendientes_.siguientes[static_cast<std::size_t>(indice)] = false;
        conjuntos_.siguientes.push_back({reglas_.cabeza(indice), trabajo_.elementos()});
        terminados_.anota(conjuntos_.siguientes.size() - 1);
    }
}

void CalculoSiguientes::recorre(Simbolo variable) {
    visitados_.vacia(reglas_.numSimbolos());
    pila_.clear();
    entra(variable);
    while (!pila_.empty()) {
        Marco& marco = pila_.back();
        if (marco.siguiente == marco.aportacion->cabezas.size()) {
            pila_.pop_back();
            continue;
        }
        const Simbolo cabeza = marco.aportacion->cabezas[marco.siguiente++];
        if (terminados_.terminado(cabeza))
            trabajo_.inserta(terminados_.elementos(cabeza));
        else if (!visitados_.contiene(cabeza))
            entra(cabeza);
    }
}

void CalculoSiguientes::entra(Simbolo variable) {
    primeros_.exigeSeguir();
    visitados_.inserta(variable);
    const Aportacion& suya = aportacion(variable);
    trabajo_.inserta(suya.elementos);
    pila_.push_back({&suya, 0});
}

const CalculoSiguientes::Aportacion& CalculoSiguientes::aportacion(Simbolo variable) {
    Aportacion& suya = aportaciones_[static_cast<std::size_t>(variable)];
    if (!suya.hecha) aporta(variable, suya);
    return suya;
}

void CalculoSiguientes::aporta(Simbolo variable, Aportacion& aportacion) {
    primeros_.abre();
    int reglaConFin = 0;       // the last rule whose head's FOLLOW has been taken over
    int reglaRecorrida = 0;    // the last rule in which a rest was scanned …
    std::size_t recorrido = 0; // … and where the scan ended: a rest within it adds nothing
    for (const auto& [regla, posicion] : apariciones_[static_cast<std::size_t>(variable)]) {
        const Cuerpo cuerpo = reglas_.cuerpo(regla);
        const Cuerpo resto = cuerpo.subspan(posicion + 1);
        if (!resto.empty() && (regla != reglaRecorrida || posicion + 1 > recorrido)) {
            primeros_.recorre(resto, false, 0);
            reglaRecorrida = regla;
            recorrido = posicion + 1;
            while (recorrido + 1 < cuerpo.size() && primeros_.empiezaVacia(cuerpo[recorrido])) ++recorrido;
        }
        const bool hastaElFin = resto.empty() || primeros_.empiezaVacia(resto.front());
        if (!hastaElFin || regla == reglaConFin || reglas_.cabeza(regla) == variable) continue;
        reglaConFin = regla;
        aportacion.cabezas.push_back(reglas_.cabeza(regla));
    }
    for (const Simbolo simbolo : primeros_.trabajo().elementos())
        if (simbolo != ReglasPartidas::vacio) aportacion.elementos.push_back(simbolo);
    aportacion.hecha = true;
}

void calculaPredict(const ReglasPartidas& reglas, Conjuntos& conjuntos, Pendientes& pendientes,
                    CalculoPrimeros& primeros, const IndiceDeConjuntos& siguientes) {
    for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
        const Simbolo cabeza = reglas.cabeza(regla);
        if (cabeza == ReglasPartidas::sinSimbolo) continue;
        pendientes.actual = regla;
        primeros.abre();
        primeros.recorre(reglas.cuerpo(regla), false, regla);
        ConjuntoDeTrabajo& conjunto = primeros.trabajo();
        if (conjunto.contiene(ReglasPartidas::vacio)) conjunto.inserta(siguientes.elementos(cabeza));
        ConjuntoNumerado predict = {cabeza, conjunto.elementos()};
        std::erase(predict.elementos, ReglasPartidas::vacio);
        conjuntos.predict.push_back(std::move(predict));
    }
}

} // namespace norvik::inline v0_2::clasico
