// SPDX-License-Identifier: MIT

// The LR(1) automaton with merged states. A state is a kernel whose items carry their look-aheads, and goes
// into one of the same kernel that does the same with every token, there and further on (Pager 1977, who asks
// less of it; what must be the same is told by Denny and Malloy 2010: inadecuaciones.cpp). Look-aheads of a
// state that grow are handed on to its successors, which may then have to be others; states that nothing
// leads to any more are dropped at the end. A first round, where any two of a kernel are merged, gives the
// LALR(1) automaton; the questions are put to that, and where there are none it is the answer.
#include "norvik/grammar/exacto/automata.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/presupuesto.hpp"
#include "norvik/grammar/exacto/estados.hpp"
#include "norvik/grammar/exacto/inadecuaciones.hpp"
#include "norvik/grammar/exacto/nucleoLr1.hpp"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <map>
#include <utility>

namespace norvik::inline v0_2::exacto {

namespace {

using Clave = std::vector<std::pair<std::int16_t, std::int16_t>>;

Clave claveDe(const NucleoLr1& nucleo) {
    Clave clave;
    clave.reserve(nucleo.size());
    for (const ItemLr1& i : nucleo) clave.emplace_back(i.item.regla, i.item.punto);
    return clave;
}

// What states of one kernel must have in common.
using Condiciones = std::map<Clave, Inadecuaciones>;

class ConstructorLr1 {
public:
    /// Without a condition any two states of a kernel are merged.
    ConstructorLr1(const Producciones& producciones, const Prioridades& prioridades,
                   const Condiciones& condiciones, const Presupuesto& presupuesto)
        : producciones_(producciones), prioridades_(prioridades), condiciones_(condiciones),
          presupuesto_(presupuesto) {}

    void construye() {
        Bits final(producciones_.numSimbolos());
        final.inserta(ReglasPartidas::finTexto);
        nuevo({{{0, 0}, std::move(final)}});
        while (!pendientes_.empty()) {
            const std::size_t estado = pendientes_.front();
            pendientes_.pop_front();
            enCola_[estado] = false;
            presupuesto_.exige();
            avanza(estado);
        }
    }
    const std::vector<EstadoLR>& estados() const { return estados_; }
    const std::vector<NucleoLr1>& nucleos() const { return nucleos_; }

private:
    std::size_t nuevo(NucleoLr1 nucleo) {
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

    void avanza(std::size_t estado) {
        std::map<Simbolo, NucleoLr1> destinos;
        const auto reune = [&](Item item, const Bits& adelantos) {
            const Simbolo simbolo = simboloTras(producciones_, item);
            if (simbolo != ReglasPartidas::sinSimbolo)
                destinos[simbolo].push_back(
                    {{item.regla, static_cast<std::int16_t>(item.punto + 1)}, adelantos});
        };
        for (const auto& [item, suyos] : nucleos_[estado]) reune(item, suyos);
        for (const auto& [variable, suyos] : adelantosDelCierre(producciones_, nucleos_[estado]))
            for (const std::int16_t regla : producciones_.de(variable)) reune({regla, 0}, suyos);
        std::vector<std::pair<Simbolo, std::size_t>> enlaces;
        for (auto& [simbolo, nucleo] : destinos) {
            std::ranges::sort(nucleo, vaDelante, &ItemLr1::item);
            enlaces.emplace_back(simbolo, estadoPara(std::move(nucleo)));
        }
        estados_[estado].destinos = std::move(enlaces);
    }

    std::size_t estadoPara(NucleoLr1 nucleo) {
        Clave clave = claveDe(nucleo);
        const auto condicion = condiciones_.find(clave);
        std::vector<std::size_t>& iguales = porNucleo_[std::move(clave)];
        for (const std::size_t estado : iguales) {
            presupuesto_.exige();
            if (condicion != condiciones_.end() &&
                !coinciden(condicion->second, prioridades_, nucleo, nucleos_[estado]))
                continue;
            bool crece = false;
            for (std::size_t i = 0; i < nucleo.size(); ++i)
                crece = nucleos_[estado][i].adelantos.une(nucleo[i].adelantos) || crece;
            if (crece) encola(estado);
            return estado;
        }
        const std::size_t estado = nuevo(std::move(nucleo));
        iguales.push_back(estado);
        return estado;
    }

    const Producciones& producciones_;
    const Prioridades& prioridades_;
    const Condiciones& condiciones_;
    const Presupuesto& presupuesto_;
    std::vector<EstadoLR> estados_;
    std::vector<NucleoLr1> nucleos_; // of each state
    std::vector<bool> enCola_;       // of each state
    std::deque<std::size_t> pendientes_;
    std::map<Clave, std::vector<std::size_t>> porNucleo_;
};

AutomataLR creaDentroDe(const Presupuesto& presupuesto, const Producciones& producciones,
                        const Prioridades& prioridades) {
    Condiciones condiciones;
    ConstructorLr1 lalr(producciones, prioridades, condiciones, presupuesto);
    lalr.construye();
    auto inadecuaciones =
        buscaInadecuaciones(producciones, prioridades, lalr.estados(), lalr.nucleos(), presupuesto);
    for (std::size_t i = 0; i < inadecuaciones.size(); ++i)
        if (!inadecuaciones[i].empty())
            condiciones.emplace(claveDe(lalr.nucleos()[i]), std::move(inadecuaciones[i]));
    if (condiciones.empty()) return acaba(producciones, lalr.estados());
    ConstructorLr1 lr1(producciones, prioridades, condiciones, presupuesto);
    lr1.construye();
    return acaba(producciones, lr1.estados());
}

} // namespace

AutomataLR creaAutomataLr1(const Producciones& producciones, const Precedencias& precedencias) {
    if (producciones.cabezas().empty()) return {};
    try {
        return creaDentroDe(Presupuesto(Presupuesto::plazoComun, producciones.parada()), producciones,
                            Prioridades(producciones.reglas(), precedencias));
    } catch (const BusquedaDesbocada&) {
        throw Desbordamiento(
            u"Desbordamiento: el autómata LR(1) de la gramática no se acaba en tres segundos");
    }
}

} // namespace norvik::inline v0_2::exacto
