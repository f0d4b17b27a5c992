// SPDX-License-Identifier: MIT

// The LR(0) automaton (Knuth 1965), by kernels: states with one kernel are one state, found by a search among
// all kernels in order.
#include "norvik/grammar/exacto/automata.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/grammar/exacto/estados.hpp"
#include "norvik/grammar/tablaLR.hpp"

#include <algorithm>
#include <map>
#include <utility>

namespace norvik::inline v0_2::exacto {

namespace {

struct NucleoMenor {
    bool operator()(const std::vector<Item>& uno, const std::vector<Item>& otro) const {
        return std::ranges::lexicographical_compare(uno, otro, vaDelante);
    }
};

class ConstructorLR0 {
public:
    explicit ConstructorLR0(const Producciones& producciones) : producciones_(producciones) {}

    std::vector<EstadoLR> estados() {
        estadoDe({{0, 0}});
        for (std::size_t i = 0; i < estados_.size(); ++i) {
            producciones_.exigeSeguir();
            avanza(i);
        }
        return std::move(estados_);
    }

private:
    std::size_t estadoDe(std::vector<Item> nucleo) {
        const auto [sitio, nuevo] = numeros_.try_emplace(nucleo, estados_.size());
        if (!nuevo) return sitio->second;
        if (estados_.size() + 1 == static_cast<std::size_t>(TablaLR::aceptar))
            throw Desbordamiento(u"Desbordamiento: el autómata de la gramática pasa de 999 estados");
        estados_.push_back({std::move(nucleo), {}});
        return estados_.size() - 1;
    }

    void avanza(std::size_t estado) {
        std::vector<std::pair<Simbolo, std::vector<Item>>> nucleos; // in order of appearance
        std::vector<std::size_t> lugares(producciones_.numSimbolos());
        const auto reune = [&](Item item) {
            const Simbolo simbolo = simboloTras(producciones_, item);
            if (simbolo == ReglasPartidas::sinSimbolo) return;
            std::size_t& lugar = lugares[Producciones::indice(simbolo)]; // from 1; 0: none yet
            if (lugar == 0) {
                nucleos.emplace_back(simbolo, std::vector<Item>());
                lugar = nucleos.size();
            }
            nucleos[lugar - 1].second.push_back({item.regla, static_cast<std::int16_t>(item.punto + 1)});
        };
        const std::vector<Item> nucleo = estados_[estado].nucleo;
        for (const Item item : nucleo) reune(item);
        for (const std::int16_t regla : cierre(producciones_, nucleo)) reune({regla, 0});
        for (auto& [simbolo, destino] : nucleos) {
            std::ranges::sort(destino, vaDelante);
            const std::size_t numero = estadoDe(std::move(destino));
            estados_[estado].destinos.emplace_back(simbolo, numero);
        }
    }

    const Producciones& producciones_;
    std::vector<EstadoLR> estados_;
    std::map<std::vector<Item>, std::size_t, NucleoMenor> numeros_;
};

} // namespace

AutomataLR creaAutomata(const Producciones& producciones) {
    if (producciones.cabezas().empty()) return {};
    return acaba(producciones, ConstructorLR0(producciones).estados());
}

} // namespace norvik::inline v0_2::exacto
