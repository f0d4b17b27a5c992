// SPDX-License-Identifier: MIT

#include "norvik/grammar/clasico/automata.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/presupuesto.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

// The LR(0) automaton (Knuth 1965), depth first, with two departures that decide which states exist. A target
// is any state that contains the kernel sought, not only one with that very kernel; and of several the one
// that stands first in a list in which a state is put when it is begun and moved to the end when it is
// finished. Items that share their next symbol search again one by one, in between the states that the
// others brought about, and the last answer holds.
//
// A state's place in the list is the moment of its last appending, so the first of several is the one with
// the smallest. Only kernel items have a dot beyond the start, so a state contains a kernel when its own
// kernel does; the candidates are the states that have the kernel's rarest item. The recursion over states
// runs on a stack of its own, and so does the closure, which takes up each head once a state: a head met
// again inside its own rules goes on where the outer visit stands.
namespace norvik::inline v0_2::clasico {

namespace {

std::uint64_t bit(int item) {
    return std::uint64_t{1} << ((static_cast<std::uint64_t>(item) * 0x9E3779B97F4A7C15U) >> 58U);
}

template <typename T>
std::size_t indice(T valor) {
    return static_cast<std::size_t>(valor);
}

/// The left-recursive rules of the start symbol, with the dot behind it.
Nucleo nucleoInicial(const ReglasPartidas& reglas) {
    const Simbolo inicial = reglas.cabeza(1);
    Nucleo nucleo;
    for (int regla = 1; regla <= reglas.numReglas(); ++regla)
        if (reglas.cabeza(regla) == inicial && reglas.cuerpo(regla).front() == inicial)
            nucleo.push_back({static_cast<std::int16_t>(regla), 1});
    return nucleo;
}

} // namespace

// State 1, which the table reaches from state 0 over the start symbol, is built apart and last; it has items
// only for a start symbol that is left-recursive.
AutomataLR creaAutomata(const ReglasPartidas& reglas, const std::stop_token& parada) {
    if (!reglas.hayInicial()) return {};
    ConstructorAutomata constructor(reglas, {}, 2);
    estadoAutomata inicial;
    inicial.setNumEstado(0);
    inicial.setInicial();
    constructor.aniadeRegla(reglas.cabeza(1), inicial);
    constructor.construyeTransiciones(std::move(inicial), parada);
    estadoAutomata aceptacion;
    aceptacion.setNumEstado(1);
    constructor.aniadeNucleo(nucleoInicial(reglas), aceptacion);
    constructor.construyeTransiciones(std::move(aceptacion), parada);
    AutomataLR automata{std::move(constructor).estados()};
    std::ranges::sort(automata.estados, {}, &estadoAutomata::getNumEstado);
    return automata;
}

ConstructorAutomata::ConstructorAutomata(const ReglasPartidas& reglas, std::vector<estadoAutomata> estados,
                                         std::int16_t numEstados)
    : reglas_(reglas), numEstados_(numEstados), primerItem_(indice(reglas.numReglas()) + 2),
      turnoCabeza_(reglas.numSimbolos()), siguienteRegla_(reglas.numSimbolos()),
      grupoDeSimbolo_(reglas.numSimbolos(), -1) {
    for (int regla = 1; regla <= reglas.numReglas(); ++regla)
        primerItem_[indice(regla) + 1] =
            primerItem_[indice(regla)] + (reglas.esVacia(regla) ? 0 : a16(reglas.cuerpo(regla).size())) + 1;
    poseedores_.resize(indice(primerItem_.back()));
    presentes_.resize(indice(primerItem_.back()));
    for (estadoAutomata& estado : estados) {
        anota(estado);
        estados_.push_back(std::move(estado));
    }
}

/// Symbols of a body over which a dot can move.
int ConstructorAutomata::longitud(int regla) const {
    return primerItem_[indice(regla) + 1] - primerItem_[indice(regla)] - 1;
}

void ConstructorAutomata::compruebaItem(Item item) const {
    const bool valido = item.regla >= 1 && item.regla <= reglas_.numReglas() && item.punto >= 0 &&
                        item.punto <= longitud(item.regla);
    if (!valido)
        throw SubindiceFueraDeIntervalo(u"Subíndice fuera de intervalo: ninguna regla tiene el elemento (" +
                                        aTexto(item.regla) + u", " + aTexto(item.punto) + u")");
}

/// Gets ready to add to a state, which may have items already.
void ConstructorAutomata::abre(const estadoAutomata& estado) {
    ++turno_;
    for (const Item item : estado.items()) {
        compruebaItem(item);
        presentes_[indice(numero(item))] = turno_;
    }
}

bool ConstructorAutomata::aniadeNuevo(Item item, estadoAutomata& estado) {
    std::uint32_t& presente = presentes_[indice(numero(item))];
    if (presente == turno_) return false;
    presente = turno_;
    estado.aniade(item, item.punto < longitud(item.regla));
    return true;
}

void ConstructorAutomata::cierra(Simbolo variable, estadoAutomata& estado) {
    pendientes_.assign(1, variable);
    while (!pendientes_.empty()) {
        const Simbolo cabeza = pendientes_.back();
        int& siguiente = siguienteRegla_[indice(cabeza)];
        if (turnoCabeza_[indice(cabeza)] != turno_) {
            turnoCabeza_[indice(cabeza)] = turno_;
            siguiente = reglas_.primera(cabeza);
        }
        if (siguiente == reglas_.fin(cabeza)) {
            pendientes_.pop_back();
            continue;
        }
        const int regla = siguiente++;
        if (!aniadeNuevo({static_cast<std::int16_t>(regla), 0}, estado)) continue;
        const Simbolo primero = reglas_.cuerpo(regla).front();
        if (reglas_.esVariable(primero)) pendientes_.push_back(primero);
    }
}

void ConstructorAutomata::aniadeRegla(Simbolo variable, estadoAutomata& estado) {
    abre(estado);
    cierra(variable, estado);
}

void ConstructorAutomata::aniadeNucleo(const Nucleo& nucleo, estadoAutomata& estado) {
    abre(estado);
    for (const Item item : nucleo) {
        compruebaItem(item);
        aniadeNuevo(item, estado);
        if (item.punto == longitud(item.regla)) continue;
        const Simbolo siguiente = reglas_.cuerpo(item.regla)[indice(item.punto)];
        if (reglas_.esVariable(siguiente)) cierra(siguiente, estado);
    }
}

void ConstructorAutomata::construyeTransiciones(estadoAutomata estado, const std::stop_token& parada) {
    pila_.clear();
    apila(std::move(estado));
    while (!pila_.empty()) {
        exigeSeguir(parada);
        Marco& marco = pila_.back();
        if (marco.item < marco.grupoDe.size()) {
            avanza();
            continue;
        }
        enLista_[marco.estado].momento = ++reloj_;
        pila_.pop_back();
    }
}

void ConstructorAutomata::apila(estadoAutomata estado) {
    anota(estado);
    const bool tieneSalida = std::ranges::any_of(
        estado.adyacentes(), [](std::int16_t a) { return a != estadoAutomata::sinTransicion; });
    estados_.push_back(std::move(estado));
    if (!tieneSalida) { // begun and finished
        enLista_.back().momento = ++reloj_;
        return;
    }
    Marco& marco = pila_.emplace_back();
    marco.estado = estados_.size() - 1;
    agrupa(marco);
}

/// Enters a state that is about to be appended into the search for targets.
void ConstructorAutomata::anota(const estadoAutomata& estado) {
    EnLista ficha;
    ficha.inicio = nucleos_.size();
    for (const Item item : estado.items()) {
        if (item.punto == 0) continue;
        compruebaItem(item);
        nucleos_.push_back(numero(item));
        ficha.firma |= bit(numero(item));
        auto& [cuantos, ultima] = poseedores_[indice(numero(item))];
        posesiones_.push_back({static_cast<int>(enLista_.size()), ultima});
        ultima = static_cast<int>(posesiones_.size()) - 1;
        ++cuantos;
    }
    ficha.largo = nucleos_.size() - ficha.inicio;
    std::sort(nucleos_.end() - static_cast<std::ptrdiff_t>(ficha.largo), nucleos_.end());
    ficha.momento = ++reloj_;
    enLista_.push_back(ficha);
}

/// The group of an item's next symbol while a state is being grouped.
std::int16_t& ConstructorAutomata::grupoDe(Item item) {
    return grupoDeSimbolo_[indice(reglas_.cuerpo(item.regla)[indice(item.punto)])];
}

void ConstructorAutomata::agrupa(Marco& marco) {
    const estadoAutomata& estado = estados_[marco.estado];
    for (std::size_t i = 0; i < estado.items().size(); ++i) {
        marco.grupoDe.push_back(-1);
        if (estado.adyacentes()[i] == estadoAutomata::sinTransicion) continue;
        std::int16_t& grupo = grupoDe(estado.items()[i]);
        if (grupo < 0) {
            grupo = static_cast<std::int16_t>(marco.grupos.size());
            marco.grupos.emplace_back();
        }
        marco.grupoDe.back() = grupo;
        ++marco.grupos[indice(grupo)].cuantos;
    }
    std::int16_t total = 0;
    for (Grupo& grupo : marco.grupos) {
        grupo.inicio = total;
        total = static_cast<std::int16_t>(total + std::exchange(grupo.cuantos, std::int16_t{0}));
    }
    marco.miembros.resize(indice(total));
    for (std::size_t i = 0; i < marco.grupoDe.size(); ++i) {
        if (marco.grupoDe[i] < 0) continue;
        Grupo& grupo = marco.grupos[indice(marco.grupoDe[i])];
        marco.miembros[indice(grupo.inicio + grupo.cuantos++)] = static_cast<std::int16_t>(i);
        grupoDe(estado.items()[i]) = -1;
    }
}

/// Finds or builds the target of the next item of the innermost state.
void ConstructorAutomata::avanza() {
    Marco& marco = pila_.back();
    const int numeroGrupo = marco.grupoDe[marco.item++];
    if (numeroGrupo < 0) return;
    Grupo& grupo = marco.grupos[indice(numeroGrupo)];
    if (grupo.momento == reloj_) return;
    grupo.momento = reloj_;
    estadoAutomata& estado = estados_[marco.estado];
    const auto miembros = std::span(marco.miembros).subspan(indice(grupo.inicio), indice(grupo.cuantos));
    nucleo_.clear();
    for (const std::int16_t miembro : miembros) {
        const auto [regla, punto] = estado.items()[indice(miembro)];
        nucleo_.push_back({regla, static_cast<std::int16_t>(punto + 1)});
    }
    if (const auto destino = busca()) return fija(miembros, *destino, estado);
    if (numEstados_ >= maximoEstados)
        throw Desbordamiento(u"Desbordamiento: el autómata llega a 1000 estados");
    fija(miembros, numEstados_, estado);
    apila(creaEstado(nucleo_));
}

estadoAutomata ConstructorAutomata::creaEstado(const Nucleo& nucleo) {
    estadoAutomata estado;
    estado.setNumEstado(numEstados_++);
    aniadeNucleo(nucleo, estado);
    return estado;
}

void ConstructorAutomata::fija(std::span<const std::int16_t> miembros, std::int16_t destino,
                               estadoAutomata& estado) {
    for (const std::int16_t miembro : miembros)
        estado.setTransicionIndividual(static_cast<std::int16_t>(miembro + 1), destino);
}

/// The first state in the list's present order that contains the kernel sought.
std::optional<std::int16_t> ConstructorAutomata::busca() const {
    const auto candidatos = [this](Item item) { return poseedores_[indice(numero(item))].cuantos; };
    const Item raro = *std::ranges::min_element(nucleo_, {}, candidatos);
    std::uint64_t firma = 0;
    for (const Item item : nucleo_) firma |= bit(numero(item));
    std::optional<int> mejor;
    for (int p = poseedores_[indice(numero(raro))].ultima; p >= 0; p = posesiones_[indice(p)].anterior) {
        const int candidato = posesiones_[indice(p)].estado;
        const EnLista& ficha = enLista_[indice(candidato)];
        if ((firma & ~ficha.firma) != 0) continue;
        if (mejor && enLista_[indice(*mejor)].momento < ficha.momento) continue;
        const bool contiene = std::ranges::all_of(
            nucleo_, [&](Item item) { return std::ranges::binary_search(nucleo(ficha), numero(item)); });
        if (contiene) mejor = candidato;
    }
    if (!mejor) return std::nullopt;
    return estados_[indice(*mejor)].getNumEstado();
}

std::vector<estadoAutomata> ConstructorAutomata::estados() && {
    std::vector<std::size_t> orden(estados_.size());
    std::iota(orden.begin(), orden.end(), std::size_t{0});
    std::ranges::sort(orden, {}, [this](std::size_t i) { return enLista_[i].momento; });
    std::vector<estadoAutomata> lista;
    lista.reserve(orden.size());
    for (const std::size_t i : orden) lista.push_back(std::move(estados_[i]));
    return lista;
}

} // namespace norvik::inline v0_2::clasico
