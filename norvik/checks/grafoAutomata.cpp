// SPDX-License-Identifier: MIT

#include "norvik/checks/grafoAutomata.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

GrafoAutomata::GrafoAutomata(const exacto::Producciones& producciones, const AutomataLR& automata,
                             const DerivacionesMinimas& minimas)
    : producciones_(producciones), automata_(automata), minimas_(minimas),
      simbolos_(producciones.numSimbolos()), destinos_(estados() * simbolos_, ninguno), salidas_(estados()),
      acabadas_(estados()), predecesores_(estados()), accesos_(estados(), ReglasPartidas::sinSimbolo),
      anteriores_(estados(), ninguno) {
    for (std::size_t i = 0; i < estados(); ++i) enlaza(static_cast<std::int16_t>(i));
    buscaCaminos();
}

void GrafoAutomata::enlaza(std::int16_t estado) {
    const auto aniade = [&](Simbolo simbolo, std::int16_t adonde) {
        std::int16_t& sitio =
            destinos_[static_cast<std::size_t>(estado) * simbolos_ + static_cast<std::size_t>(simbolo)];
        if (sitio != ninguno || !minimas_.produce(simbolo)) return;
        sitio = adonde;
        salidas_[static_cast<std::size_t>(estado)].emplace_back(simbolo, adonde);
        predecesores_[static_cast<std::size_t>(adonde)].push_back(estado);
        accesos_[static_cast<std::size_t>(adonde)] = simbolo;
    };
    const auto& suyo = automata_.estados[static_cast<std::size_t>(estado)];
    for (std::size_t i = 0; i < suyo.items().size(); ++i) {
        const Simbolo simbolo = simboloTras(suyo.items()[i]);
        if (simbolo == ReglasPartidas::sinSimbolo)
            acabadas_[static_cast<std::size_t>(estado)].push_back(suyo.items()[i].regla);
        else
            aniade(simbolo, suyo.adyacentes()[i]);
    }
    if (estado == 0 && destino(0, producciones_.inicial()) == ninguno) aniade(producciones_.inicial(), 1);
}

void GrafoAutomata::buscaCaminos() {
    std::vector<std::int16_t> cola{0};
    for (std::size_t i = 0; i < cola.size(); ++i)
        for (const auto& [simbolo, adonde] : salidas(cola[i])) {
            if (adonde == 0 || anteriores_[static_cast<std::size_t>(adonde)] != ninguno) continue;
            anteriores_[static_cast<std::size_t>(adonde)] = cola[i];
            cola.push_back(adonde);
        }
}

Simbolo GrafoAutomata::simboloTras(Item item) const {
    const Cuerpo cuerpo = producciones_.cuerpo(item.regla);
    const auto punto = static_cast<std::size_t>(item.punto);
    return punto < cuerpo.size() ? cuerpo[punto] : ReglasPartidas::sinSimbolo;
}

Cuerpo GrafoAutomata::resto(Item item) const {
    return producciones_.cuerpo(item.regla).subspan(static_cast<std::size_t>(item.punto) + 1);
}

std::vector<std::int16_t> GrafoAutomata::caminoHasta(std::int16_t estado) const {
    std::vector<std::int16_t> camino{estado};
    while (camino.back() != 0) {
        const std::int16_t anterior = anteriores_[static_cast<std::size_t>(camino.back())];
        if (anterior == ninguno) return {};
        camino.push_back(anterior);
    }
    std::ranges::reverse(camino);
    return camino;
}

} // namespace norvik::inline v0_2
