// SPDX-License-Identifier: MIT

#include "norvik/checks/curaConflicto.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/grammar/exacto/genera.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

using Cura = HistoriaConflicto::Cura;
using Contraria = CasoConflicto::Contraria;

std::u16string textoDeRegla(const ReglasPartidas& reglas, std::int16_t regla) {
    std::u16string texto(reglas.texto(reglas.cabeza(regla)));
    texto += u" ->";
    for (const Simbolo simbolo : reglas.cuerpo(regla)) texto.append(u" ").append(reglas.texto(simbolo));
    return texto;
}

Cura CurasConflicto::de(const CasoConflicto& caso, const HistoriaConflicto& historia) {
    if (historia.clase == HistoriaConflicto::Clase::Ambigua) return deAmbigua(caso, historia);
    const Firma firma{caso.estado, historia.simbolo, caso.reduccion, caso.otraRegla};
    if (opciones_.metodo == Metodo::Slr && !tiene(Metodo::Lalr, firma)) return Cura::MetodoLalr;
    const Firma enCualquiera{0, historia.simbolo, caso.reduccion, caso.otraRegla};
    if (opciones_.metodo != Metodo::Lr1 && !tiene(Metodo::Lr1, enCualquiera)) return Cura::MetodoLr1;
    return Cura::Factorizar;
}

Cura CurasConflicto::deAmbigua(const CasoConflicto& caso, const HistoriaConflicto& historia) const {
    const ArbolEjemplo& arbol = historia.cortos[1].arbol;
    const auto frase = historia.cortos[1].frase();
    if (frase.size() == 1 && frase.front() == arbol.nodos.back().simbolo) return Cura::Ciclo;
    if (caso.contraria == Contraria::Desplazar && esColgante(caso)) return Cura::SinoColgante;
    const Cuerpo cuerpo = producciones_.cuerpo(caso.reduccion);
    const Simbolo cabeza = gramatica_.partidas.cabeza(caso.reduccion);
    const bool acabaEnSi = !cuerpo.empty() && cuerpo.back() == cabeza;
    if (caso.contraria == Contraria::Desplazar && acabaEnSi && esOperador(caso))
        return std::ranges::count(cuerpo, caso.token) != 0 ? Cura::Asociatividad : Cura::Prioridad;
    const bool vacia = cuerpo.empty() ||
                       (caso.contraria == Contraria::Reducir && producciones_.cuerpo(caso.otraRegla).empty());
    if (vacia || (acabaEnSi && cuerpo.front() == cabeza)) return Cura::ListaDosVeces;
    return caso.contraria == Contraria::Reducir ? Cura::DosVariables : Cura::Reescribir;
}

// The other action waits for an operator behind the head itself: E -> E . por E.
bool CurasConflicto::esOperador(const CasoConflicto& caso) const {
    const Simbolo cabeza = gramatica_.partidas.cabeza(caso.reduccion);
    const auto& estado = gramatica_.automata.estados[static_cast<std::size_t>(caso.estado)];
    return std::ranges::any_of(estado.items(), [&](Item item) {
        const Cuerpo cuerpo = producciones_.cuerpo(item.regla);
        return item.punto == 1 && gramatica_.partidas.cabeza(item.regla) == cabeza && cuerpo[0] == cabeza &&
               cuerpo.size() > 1 && cuerpo[1] == caso.token;
    });
}

// The other action goes on with a rule that begins with the whole of the reduced one.
bool CurasConflicto::esColgante(const CasoConflicto& caso) const {
    const Cuerpo cuerpo = producciones_.cuerpo(caso.reduccion);
    const Simbolo cabeza = gramatica_.partidas.cabeza(caso.reduccion);
    if (cuerpo.empty()) return false;
    return std::ranges::any_of(producciones_.de(cabeza), [&](std::int16_t regla) {
        const Cuerpo otro = producciones_.cuerpo(regla);
        return otro.size() > cuerpo.size() && otro[cuerpo.size()] == caso.token &&
               std::ranges::equal(otro.first(cuerpo.size()), cuerpo);
    });
}

std::set<CurasConflicto::Firma> CurasConflicto::firmas(const TablaLR& tabla, Metodo metodo) {
    std::set<Firma> firmas;
    for (const auto& [fila, columna, regla] : tabla.conflictos()) {
        const std::int16_t queda =
            tabla.entrada(static_cast<std::int16_t>(fila - 1), static_cast<std::int16_t>(columna - 1));
        const auto estado = metodo == Metodo::Lr1 ? std::int16_t{0} : static_cast<std::int16_t>(fila - 1);
        firmas.emplace(estado, tabla.simbolo(columna), regla,
                       queda < 0 ? static_cast<std::int16_t>(-queda) : 0);
    }
    return firmas;
}

// A table that cannot be built has every conflict.
bool CurasConflicto::tiene(Metodo metodo, const Firma& firma) {
    auto& suyas = metodo == Metodo::Lalr ? lalr_ : lr1_;
    try {
        if (!suyas)
            suyas = firmas(
                exacto::genera(gramatica_.reglas, {metodo, opciones_.precedencias}, producciones_.parada())
                    .tabla,
                metodo);
    } catch (const OperacionCancelada&) {
        throw;
    } catch (const ErrorNorvik&) {
        suyas = std::set<Firma>{};
        return true;
    }
    return suyas->contains(firma);
}

} // namespace norvik::inline v0_2
