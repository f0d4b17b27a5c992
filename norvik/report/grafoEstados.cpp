// SPDX-License-Identifier: MIT

// The automaton as a graph. The cheapest ways from state 0 are those of Dijkstra (1959), where a transition
// costs the tokens of its symbol's shortest text: what a person types to get to a state is then as short as
// can be.
#include "norvik/report/grafoEstados.hpp"

#include "norvik/checks/derivacionesMinimas.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <algorithm>
#include <queue>
#include <set>
#include <tuple>

namespace norvik::inline v0_2 {

namespace {

std::size_t indice(std::int16_t estado) {
    return static_cast<std::size_t>(estado);
}

} // namespace

std::vector<Transicion> transicionesDe(const GramaticaLR& gramatica) {
    std::vector<Transicion> todas;
    for (const estadoAutomata& e : gramatica.automata.estados) {
        const std::int16_t numero = e.getNumEstado();
        if (numero == 0) todas.push_back({0, gramatica.partidas.cabeza(1), 1});
        std::set<Simbolo> vistos;
        for (std::size_t i = 0; i < e.items().size(); ++i) {
            const auto [regla, punto] = e.items()[i];
            const std::int16_t destino = e.adyacentes()[i];
            if (destino < 0) continue;
            const Simbolo simbolo = gramatica.partidas.cuerpo(regla)[static_cast<std::size_t>(punto)];
            const bool repite = numero == 0 && destino == 1;
            if (vistos.insert(simbolo).second && !repite) todas.push_back({numero, simbolo, destino});
        }
    }
    return todas;
}

GrafoEstados::GrafoEstados(const GramaticaLR& gramatica, const std::stop_token& parada)
    : transiciones_(transicionesDe(gramatica)), llegadas_(gramatica.automata.estados.size()),
      textos_(gramatica.partidas.numSimbolos()) {
    const exacto::Producciones producciones(gramatica.partidas, parada);
    const DerivacionesMinimas minimas(producciones);
    std::vector<std::int64_t> tokens(textos_.size(), DerivacionesMinimas::maximo);
    for (std::size_t s = 0; s < textos_.size(); ++s) {
        producciones.exigeSeguir();
        const auto simbolo = static_cast<Simbolo>(s);
        if (!minimas.produce(simbolo)) continue;
        tokens[s] = minimas.tokens({&simbolo, 1});
        if (tokens[s] > maximoTokens) continue;
        ArbolEjemplo arbol;
        minimas.ponMinimo(arbol, simbolo);
        textos_[s] = hojas(arbol);
    }
    buscaCaminos(tokens);
}

void GrafoEstados::buscaCaminos(const std::vector<std::int64_t>& tokens) {
    std::vector<std::vector<std::size_t>> salidas(estados());
    for (std::size_t t = 0; t < transiciones_.size(); ++t)
        salidas[indice(transiciones_[t].desde)].push_back(t);
    using Pendiente = std::tuple<std::int64_t, std::int64_t, std::int16_t>;
    std::priority_queue<Pendiente, std::vector<Pendiente>, std::greater<>> pendientes;
    std::vector<bool> hechos(estados());
    if (estados() > 0) pendientes.emplace(0, 0, std::int16_t{0});
    while (!pendientes.empty()) {
        const auto [coste, pasos, estado] = pendientes.top();
        pendientes.pop();
        if (hechos[indice(estado)]) continue;
        hechos[indice(estado)] = true;
        for (const std::size_t t : salidas[indice(estado)]) {
            Llegada& otra = llegadas_[indice(transiciones_[t].hasta)];
            const std::int64_t suCoste = coste + tokens[static_cast<std::size_t>(transiciones_[t].simbolo)];
            const bool mejora = otra.transicion == ninguna ||
                                std::tuple(suCoste, pasos + 1) < std::tuple(otra.tokens, otra.pasos);
            if (transiciones_[t].hasta == 0 || !mejora) continue;
            otra = {t, suCoste, pasos + 1};
            pendientes.emplace(suCoste, pasos + 1, transiciones_[t].hasta);
        }
    }
}

std::vector<Transicion> GrafoEstados::camino(std::int16_t estado) const {
    std::vector<Transicion> suyo;
    while (llegadas_[indice(estado)].transicion != ninguna) {
        suyo.push_back(transiciones_[llegadas_[indice(estado)].transicion]);
        estado = suyo.back().desde;
    }
    std::ranges::reverse(suyo);
    return suyo;
}

std::optional<std::vector<std::u16string>> GrafoEstados::entrada(std::int16_t estado) const {
    const Llegada& llegada = llegadas_[indice(estado)];
    const bool llega = estado == 0 || llegada.transicion != ninguna;
    if (!llega || llegada.tokens > maximoTokens) return std::nullopt;
    std::vector<std::u16string> tokens;
    for (const Transicion& t : camino(estado)) {
        const auto& suyos = textos_[static_cast<std::size_t>(t.simbolo)];
        if (!suyos) return std::nullopt;
        tokens.insert(tokens.end(), suyos->begin(), suyos->end());
    }
    return tokens;
}

std::vector<std::int16_t> GrafoEstados::vecindad(std::int16_t estado, std::size_t maximo) const {
    std::vector<std::set<std::int16_t>> vecinos(estados());
    for (const Transicion& t : transiciones_) {
        vecinos[indice(t.desde)].insert(t.hasta);
        vecinos[indice(t.hasta)].insert(t.desde);
    }
    std::vector<std::int16_t> suyos{estado};
    std::vector<bool> vistos(estados());
    vistos[indice(estado)] = true;
    for (std::size_t i = 0; i < suyos.size(); ++i)
        for (const std::int16_t vecino : vecinos[indice(suyos[i])]) {
            if (vistos[indice(vecino)] || suyos.size() >= maximo) continue;
            vistos[indice(vecino)] = true;
            suyos.push_back(vecino);
        }
    std::ranges::sort(suyos);
    return suyos;
}

} // namespace norvik::inline v0_2
