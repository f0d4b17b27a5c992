// SPDX-License-Identifier: MIT

// The LR(1) automaton with merged states (Pager 1977). A state is a kernel whose items carry their
// look-aheads. Two states of one kernel are merged when no token of one item's look-aheads in the first is
// among those of another item in the second: then each token finds in the merged state the items that it
// finds in one of the two, and no conflict is new. (Pager merges also where a conflict stands already; that
// could decide it otherwise, so it is not done here.) Look-aheads of a state that grow are handed on to its
// successors, which may then have to be others; states that nothing leads to any more are dropped at the end.
#include "norvik/grammar/exacto/automata.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/grammar/exacto/estados.hpp"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <map>
#include <utility>

namespace norvik::exacto {

namespace {

// An item with its look-aheads.
struct ItemLr1 {
    Item item;
    Bits adelantos;
};

using Nucleo1 = std::vector<ItemLr1>;

bool estaContenido(const Nucleo1& uno, const Nucleo1& otro) {
    for (std::size_t i = 0; i < uno.size(); ++i)
        if (Bits(otro[i].adelantos).une(uno[i].adelantos)) return false;
    return true;
}

bool sePuedenUnir(const Nucleo1& uno, const Nucleo1& otro) {
    for (std::size_t i = 0; i < uno.size(); ++i)
        for (std::size_t j = 0; j < uno.size(); ++j)
            if (i != j && uno[i].adelantos.tieneAlgunoDe(otro[j].adelantos)) return false;
    return true;
}

class ConstructorLr1 {
public:
    explicit ConstructorLr1(const Producciones& producciones) : producciones_(producciones) {}

    std::vector<EstadoLR> estados() {
        Bits final(producciones_.numSimbolos());
        final.inserta(ReglasPartidas::finTexto);
        nuevo({{{0, 0}, std::move(final)}});
        while (!pendientes_.empty()) {
            const std::size_t estado = pendientes_.front();
            pendientes_.pop_front();
            enCola_[estado] = false;
            avanza(estado);
        }
        return std::move(estados_);
    }

private:
    std::size_t nuevo(Nucleo1 nucleo) {
        constexpr std::size_t maximo = 20'000; // those that are dropped included
        if (estados_.size() == maximo)
            throw Desbordamiento(
                u"Desbordamiento: el autómata LR(1) de la gramática pasa de 20000 estados antes de unirlos");
        std::vector<Item> items;
        for (const ItemLr1& i : nucleo) items.push_back(i.item);
        estados_.push_back({std::move(items), {}});
        nucleos_.push_back(std::move(nucleo));
        enCola_.push_back(false);
        encola(estados_.size() - 1);
        return estados_.size() - 1;
    }
    void encola(std::size_t estado) {
        if (enCola_[estado]) return;
        enCola_[estado] = true;
        pendientes_.push_back(estado);
    }

    // The look-aheads of the rules that a kernel brings in, by variable: what follows it where it stands.
    std::map<Simbolo, Bits> adelantosDelCierre(const Nucleo1& nucleo) const {
        std::map<Simbolo, Bits> adelantos;
        std::deque<Simbolo> pendientes;
        const auto reparte = [&](Item item, const Bits& suyos) {
            const Simbolo simbolo = simboloTras(producciones_, item);
            const bool abre = simbolo != ReglasPartidas::sinSimbolo &&
                              (item.regla == 0 || producciones_.esVariable(simbolo));
            if (!abre) return;
            const Cuerpo cuerpo = item.regla == 0 ? Cuerpo() : producciones_.cuerpo(item.regla);
            Bits detras(producciones_.numSimbolos());
            const Cuerpo resto =
                item.regla == 0 ? cuerpo : cuerpo.subspan(static_cast<std::size_t>(item.punto) + 1);
            if (producciones_.uneComienzo(resto, detras)) detras.une(suyos);
            const auto [sitio, primera] = adelantos.try_emplace(simbolo, producciones_.numSimbolos());
            if (sitio->second.une(detras) || primera) pendientes.push_back(simbolo);
        };
        for (const auto& [item, suyos] : nucleo) reparte(item, suyos);
        while (!pendientes.empty()) {
            const Simbolo variable = pendientes.front();
            pendientes.pop_front();
            const Bits suyos = adelantos.at(variable);
            for (const std::int16_t regla : producciones_.de(variable)) reparte({regla, 0}, suyos);
        }
        return adelantos;
    }

    void avanza(std::size_t estado) {
        std::map<Simbolo, Nucleo1> destinos;
        const auto reune = [&](Item item, const Bits& adelantos) {
            const Simbolo simbolo = simboloTras(producciones_, item);
            if (simbolo != ReglasPartidas::sinSimbolo)
                destinos[simbolo].push_back(
                    {{item.regla, static_cast<std::int16_t>(item.punto + 1)}, adelantos});
        };
        for (const auto& [item, suyos] : nucleos_[estado]) reune(item, suyos);
        for (const auto& [variable, suyos] : adelantosDelCierre(nucleos_[estado]))
            for (const std::int16_t regla : producciones_.de(variable)) reune({regla, 0}, suyos);
        std::vector<std::pair<Simbolo, std::size_t>> enlaces;
        for (auto& [simbolo, nucleo] : destinos) {
            std::ranges::sort(nucleo, vaDelante, &ItemLr1::item);
            enlaces.emplace_back(simbolo, estadoPara(std::move(nucleo)));
        }
        estados_[estado].destinos = std::move(enlaces);
    }

    // One that has all these look-aheads, else one that can take them, else a new one.
    std::size_t estadoPara(Nucleo1 nucleo) {
        std::vector<std::pair<std::int16_t, std::int16_t>> clave;
        for (const ItemLr1& i : nucleo) clave.emplace_back(i.item.regla, i.item.punto);
        std::vector<std::size_t>& iguales = porNucleo_[clave];
        for (const std::size_t estado : iguales)
            if (estaContenido(nucleo, nucleos_[estado])) return estado;
        for (const std::size_t estado : iguales) {
            if (!sePuedenUnir(nucleo, nucleos_[estado])) continue;
            for (std::size_t i = 0; i < nucleo.size(); ++i)
                nucleos_[estado][i].adelantos.une(nucleo[i].adelantos);
            encola(estado);
            return estado;
        }
        const std::size_t estado = nuevo(std::move(nucleo));
        iguales.push_back(estado);
        return estado;
    }

    const Producciones& producciones_;
    std::vector<EstadoLR> estados_;
    std::vector<Nucleo1> nucleos_; // of each state
    std::vector<bool> enCola_;     // of each state
    std::deque<std::size_t> pendientes_;
    std::map<std::vector<std::pair<std::int16_t, std::int16_t>>, std::vector<std::size_t>> porNucleo_;
};

} // namespace

AutomataLR creaAutomataLr1(const Producciones& producciones) {
    if (producciones.cabezas().empty()) return {};
    return acaba(producciones, ConstructorLr1(producciones).estados());
}

} // namespace norvik::exacto
