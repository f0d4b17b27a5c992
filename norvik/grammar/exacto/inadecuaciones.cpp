// SPDX-License-Identifier: MIT

// Which look-aheads decide something (Denny and Malloy 2010). Where the LALR(1) automaton has several actions
// before a token, each reduction is there because the token is among the look-aheads of some items of the
// kernel, or in any case. Look-aheads come from the states before: those of an item from the same item one
// symbol earlier, those of a rule just begun from what follows its variable there, which may again be what
// follows items of the kernel. So the question is carried backward from state to state, put in terms of each
// one's kernel, until nothing in it hangs on the look-aheads any more. What is left in a state is all that
// a merge of LR(1) states must heed. A shift needs no look-aheads: it is there always.
#include "norvik/grammar/exacto/inadecuaciones.hpp"

#include "norvik/base/errores.hpp"

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace norvik::inline v0_2::exacto {

namespace {

using Reglas1 = std::vector<std::int16_t>; // ascending

Reglas1 lasQueSiempre(const Inadecuacion& inadecuacion) {
    Reglas1 reglas;
    for (const Contribucion& c : inadecuacion.contribuciones)
        if (c.siempre) reglas.push_back(c.regla);
    return reglas;
}

// What is done is the same whatever the look-aheads. It is enough to look at one more reduction at a time:
// the first that changes the outcome with others changes it alone.
bool daIgual(const Inadecuacion& inadecuacion, const Prioridades& prioridades) {
    const Reglas1 fijas = lasQueSiempre(inadecuacion);
    std::optional<std::int16_t> hecho =
        prioridades.elige(inadecuacion.token, inadecuacion.desplaza, fijas).accion;
    for (const Contribucion& c : inadecuacion.contribuciones) {
        if (c.siempre) continue;
        Reglas1 reglas = fijas;
        reglas.insert(std::ranges::upper_bound(reglas, c.regla), c.regla);
        const auto suya = prioridades.elige(inadecuacion.token, inadecuacion.desplaza, reglas).accion;
        if (!hecho) hecho = suya;
        if (suya != hecho) return false;
    }
    return true;
}

class Buscador {
public:
    Buscador(const Producciones& producciones, const Prioridades& prioridades,
             const std::vector<EstadoLR>& estados, const std::vector<NucleoLr1>& nucleos,
             const Presupuesto& presupuesto)
        : producciones_(producciones), prioridades_(prioridades), estados_(estados), nucleos_(nucleos),
          presupuesto_(presupuesto), anteriores_(estados.size()), cierres_(estados.size()),
          halladas_(estados.size()) {
        for (std::size_t estado = 0; estado < estados.size(); ++estado)
            for (const auto& [simbolo, destino] : estados[estado].destinos)
                anteriores_[destino].push_back(estado);
    }

    std::vector<Inadecuaciones> busca() {
        for (std::size_t estado = 0; estado < estados_.size(); ++estado) {
            presupuesto_.exige();
            empieza(estado);
        }
        while (!pendientes_.empty()) {
            const auto [estado, inadecuacion] = pendientes_.front();
            pendientes_.pop_front();
            for (const std::size_t anterior : anteriores_[estado]) {
                presupuesto_.exige();
                lleva(*inadecuacion, estado, anterior);
            }
        }
        return std::move(halladas_);
    }

private:
    // What follows each variable that a kernel brings in: tokens, and from `numSimbolos` on the items that it
    // stands at the end of.
    const std::map<Simbolo, Bits>& cierreDe(std::size_t estado) {
        if (cierres_[estado].empty()) {
            NucleoLr1 nucleo;
            const std::size_t simbolos = producciones_.numSimbolos();
            for (const ItemLr1& i : nucleos_[estado]) {
                Bits suyo(simbolos + nucleos_[estado].size());
                suyo.inserta(simbolos + nucleo.size());
                nucleo.push_back({i.item, std::move(suyo)});
            }
            cierres_[estado] = adelantosDelCierre(producciones_, nucleo);
        }
        return cierres_[estado];
    }

    // Items whose look-aheads can have the token.
    void uneItem(Contribucion& c, std::size_t estado, std::size_t item, Simbolo token) const {
        if (nucleos_[estado][item].adelantos.contiene(Producciones::indice(token))) c.items.inserta(item);
    }
    void uneLoQueSigue(Contribucion& c, std::size_t estado, Simbolo variable, Simbolo token) {
        const Bits& detras = cierreDe(estado).at(variable);
        if (detras.contiene(Producciones::indice(token))) c.siempre = true;
        for (std::size_t i = 0; i < nucleos_[estado].size(); ++i)
            if (detras.contiene(producciones_.numSimbolos() + i)) uneItem(c, estado, i, token);
    }
    Contribucion nueva(std::size_t estado, std::int16_t regla) const {
        return {regla, false, Bits(nucleos_[estado].size())};
    }

    // All that a state can do before each token.
    void empieza(std::size_t estado) {
        std::map<Simbolo, Inadecuacion> porToken;
        const auto anota = [&](std::int16_t regla, const Bits& adelantos, const auto& une) {
            adelantos.paraCada([&](std::size_t simbolo) {
                const auto token = static_cast<Simbolo>(simbolo);
                Contribucion c = nueva(estado, regla);
                une(c, token);
                porToken[token].contribuciones.push_back(std::move(c));
            });
        };
        for (std::size_t i = 0; i < nucleos_[estado].size(); ++i) {
            const auto& [item, adelantos] = nucleos_[estado][i];
            if (item.regla == 0 || simboloTras(producciones_, item) != ReglasPartidas::sinSimbolo) continue;
            anota(item.regla, adelantos,
                  [&](Contribucion& c, Simbolo token) { uneItem(c, estado, i, token); });
        }
        for (const auto& [variable, adelantos] : adelantosDelCierre(producciones_, nucleos_[estado]))
            for (const std::int16_t regla : producciones_.de(variable))
                if (producciones_.cuerpo(regla).empty())
                    anota(regla, adelantos, [&, una = variable](Contribucion& c, Simbolo token) {
                        uneLoQueSigue(c, estado, una, token);
                    });
        for (const auto& [simbolo, destino] : estados_[estado].destinos)
            if (const auto sitio = porToken.find(simbolo); sitio != porToken.end())
                sitio->second.desplaza = true;
        if (nucleos_[estado].front().item == Item{0, 1})
            if (const auto sitio = porToken.find(ReglasPartidas::finTexto); sitio != porToken.end())
                sitio->second.desplaza = true;
        for (auto& [token, inadecuacion] : porToken) {
            inadecuacion.token = token;
            guarda(estado, std::move(inadecuacion));
        }
    }

    void lleva(const Inadecuacion& inadecuacion, std::size_t estado, std::size_t anterior) {
        Inadecuacion otra{inadecuacion.token, inadecuacion.desplaza, {}};
        for (const Contribucion& suya : inadecuacion.contribuciones) {
            Contribucion c = nueva(anterior, suya.regla);
            c.siempre = suya.siempre;
            suya.items.paraCada(
                [&](std::size_t i) { retrocede(c, anterior, nucleos_[estado][i].item, otra.token); });
            otra.contribuciones.push_back(std::move(c));
        }
        guarda(anterior, std::move(otra));
    }
    void retrocede(Contribucion& c, std::size_t anterior, Item item, Simbolo token) {
        --item.punto;
        if (item.punto == 0 && item.regla != 0) {
            uneLoQueSigue(c, anterior, producciones_.reglas().cabeza(item.regla), token);
            return;
        }
        const auto sitio = std::ranges::find(nucleos_[anterior], item, &ItemLr1::item);
        uneItem(c, anterior, static_cast<std::size_t>(sitio - nucleos_[anterior].begin()), token);
    }

    void guarda(std::size_t estado, Inadecuacion inadecuacion) {
        for (Contribucion& c : inadecuacion.contribuciones)
            if (c.siempre) c.items = c.items.vacioIgual();
        std::erase_if(inadecuacion.contribuciones,
                      [](const Contribucion& c) { return !c.siempre && c.items == c.items.vacioIgual(); });
        std::ranges::sort(inadecuacion.contribuciones, std::less());
        if (daIgual(inadecuacion, prioridades_)) return;
        const auto [sitio, es] = halladas_[estado].insert(std::move(inadecuacion));
        if (!es) return;
        constexpr std::size_t maximo = 100'000;
        if (++cuantas_ > maximo)
            throw Desbordamiento(
                u"Desbordamiento: los conflictos de la gramática son demasiados para el método "
                u"lr1; el método lalr los muestra");
        pendientes_.emplace_back(estado, &*sitio);
    }

    const Producciones& producciones_;
    const Prioridades& prioridades_;
    const std::vector<EstadoLR>& estados_;
    const std::vector<NucleoLr1>& nucleos_;
    const Presupuesto& presupuesto_;
    std::vector<std::vector<std::size_t>> anteriores_; // of each state
    std::vector<std::map<Simbolo, Bits>> cierres_;     // of each state, once asked for
    std::vector<Inadecuaciones> halladas_;
    std::deque<std::pair<std::size_t, const Inadecuacion*>> pendientes_;
    std::size_t cuantas_ = 0;
};

std::optional<std::int16_t> hecho(const Inadecuacion& inadecuacion, const Prioridades& prioridades,
                                  const NucleoLr1& nucleo) {
    const std::size_t token = Producciones::indice(inadecuacion.token);
    Reglas1 reglas;
    for (const Contribucion& c : inadecuacion.contribuciones) {
        bool esta = c.siempre;
        c.items.paraCada([&](std::size_t i) { esta = esta || nucleo[i].adelantos.contiene(token); });
        if (esta) reglas.push_back(c.regla);
    }
    return prioridades.elige(inadecuacion.token, inadecuacion.desplaza, reglas).accion;
}

} // namespace

std::vector<Inadecuaciones> buscaInadecuaciones(const Producciones& producciones,
                                                const Prioridades& prioridades,
                                                const std::vector<EstadoLR>& estados,
                                                const std::vector<NucleoLr1>& nucleos,
                                                const Presupuesto& presupuesto) {
    return Buscador(producciones, prioridades, estados, nucleos, presupuesto).busca();
}

bool coinciden(const Inadecuaciones& inadecuaciones, const Prioridades& prioridades, const NucleoLr1& uno,
               const NucleoLr1& otro) {
    return std::ranges::all_of(inadecuaciones, [&](const Inadecuacion& i) {
        const auto suyo = hecho(i, prioridades, uno);
        const auto delOtro = hecho(i, prioridades, otro);
        return !suyo || !delOtro || suyo == delOtro;
    });
}

} // namespace norvik::inline v0_2::exacto
