// SPDX-License-Identifier: MIT

// LALR look-aheads by relations (DeRemer and Pennello 1982). The nodes are the transitions over variables.
// What can be read after one is what its target shifts, and what can be read after the transitions over
// variables that can be empty there (`lee`); what follows one is that, and what follows the transitions at
// whose rules' ends it stands (`incluye`). Both are unions along a relation, made in one walk each that takes
// the nodes of a cycle together. A finished rule reduces by what follows the transitions from where the rule
// was begun.
#include "norvik/grammar/exacto/adelantos.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <utility>

namespace norvik::inline v0_2::exacto {

namespace {

using Relacion = std::vector<std::vector<std::size_t>>; // by node

// Unites with the set of each node those of all nodes that the relation leads to from it (Tarjan's walk, its
// stack a list).
class Cierre {
public:
    Cierre(const Producciones& producciones, const Relacion& relacion, std::vector<Bits>& conjuntos)
        : producciones_(producciones), relacion_(relacion), conjuntos_(conjuntos), hondura_(relacion.size()) {
    }

    void une() {
        for (std::size_t nodo = 0; nodo < relacion_.size(); ++nodo)
            if (hondura_[nodo] == 0) recorre(nodo);
    }

private:
    static constexpr auto acabado = std::numeric_limits<std::size_t>::max();
    struct Marco {
        std::size_t nodo;
        std::size_t entrada; // depth at which the walk came in
        std::size_t siguiente = 0;
    };

    void entra(std::size_t nodo) {
        producciones_.exigeSeguir();
        abiertos_.push_back(nodo);
        hondura_[nodo] = abiertos_.size();
        marcos_.push_back({nodo, abiertos_.size()});
    }

    void recorre(std::size_t raiz) {
        entra(raiz);
        while (!marcos_.empty()) {
            Marco& marco = marcos_.back();
            if (marco.siguiente < relacion_[marco.nodo].size()) {
                const std::size_t otro = relacion_[marco.nodo][marco.siguiente++];
                if (hondura_[otro] == 0)
                    entra(otro);
                else
                    toma(marco.nodo, otro);
                continue;
            }
            const Marco hecho = marco;
            marcos_.pop_back();
            if (hondura_[hecho.nodo] == hecho.entrada) cierra(hecho.nodo);
            if (!marcos_.empty()) toma(marcos_.back().nodo, hecho.nodo);
        }
    }

    void toma(std::size_t nodo, std::size_t otro) {
        hondura_[nodo] = std::min(hondura_[nodo], hondura_[otro]);
        conjuntos_[nodo].une(conjuntos_[otro]);
    }

    // The nodes of a cycle have the set of the one by which the walk came in.
    void cierra(std::size_t nodo) {
        for (bool es = false; !es;) {
            const std::size_t ultimo = abiertos_.back();
            abiertos_.pop_back();
            es = ultimo == nodo;
            if (!es) conjuntos_[ultimo] = conjuntos_[nodo];
            hondura_[ultimo] = acabado;
        }
    }

    const Producciones& producciones_;
    const Relacion& relacion_;
    std::vector<Bits>& conjuntos_;
    std::vector<std::size_t> hondura_; // 0: not met yet
    std::vector<std::size_t> abiertos_;
    std::vector<Marco> marcos_;
};

class CalculoAdelantos {
public:
    CalculoAdelantos(const Producciones& producciones, const AutomataLR& automata)
        : producciones_(producciones), automata_(automata), destinos_(automata.estados.size()) {
        buscaTransiciones();
        relaciona();
    }

    std::vector<std::vector<Bits>> calcula() {
        Cierre(producciones_, lee_, siguen_).une();
        Cierre(producciones_, incluye_, siguen_).une();
        std::vector<std::vector<Bits>> todos;
        for (std::size_t estado = 0; estado < destinos_.size(); ++estado) {
            producciones_.exigeSeguir();
            std::vector<Bits>& suyos = todos.emplace_back();
            const auto& items = automata_.estados[estado].items();
            for (std::size_t i = 0; i < items.size(); ++i) {
                Bits& conjunto = suyos.emplace_back(producciones_.numSimbolos());
                const auto desde = desde_.find({estado, items[i].regla});
                const bool acabada =
                    automata_.estados[estado].adyacentes()[i] == estadoAutomata::sinTransicion;
                if (!acabada || desde == desde_.end()) continue;
                for (const std::size_t nodo : desde->second) conjunto.une(siguen_[nodo]);
            }
        }
        return todos;
    }

private:
    struct Transicion {
        std::size_t desde;
        Simbolo variable;
        std::size_t hasta;
    };

    void buscaTransiciones() {
        for (std::size_t estado = 0; estado < destinos_.size(); ++estado) {
            producciones_.exigeSeguir();
            const auto& items = automata_.estados[estado].items();
            const auto& adyacentes = automata_.estados[estado].adyacentes();
            if (estado == 0) destinos_[0][producciones_.inicial()] = 1;
            for (std::size_t i = 0; i < items.size(); ++i) {
                if (adyacentes[i] == estadoAutomata::sinTransicion) continue;
                const Cuerpo cuerpo = producciones_.cuerpo(items[i].regla);
                destinos_[estado][cuerpo[static_cast<std::size_t>(items[i].punto)]] =
                    static_cast<std::size_t>(adyacentes[i]);
            }
            for (const auto& [simbolo, hasta] : destinos_[estado]) {
                const bool esNodo =
                    producciones_.esVariable(simbolo) || (estado == 0 && simbolo == producciones_.inicial());
                if (!esNodo) continue;
                nodos_[{estado, simbolo}] = transiciones_.size();
                transiciones_.push_back({estado, simbolo, hasta});
            }
        }
        lee_.resize(transiciones_.size());
        incluye_.resize(transiciones_.size());
        siguen_.resize(transiciones_.size(), Bits(producciones_.numSimbolos()));
    }

    void relaciona() {
        for (std::size_t nodo = 0; nodo < transiciones_.size(); ++nodo) {
            const Transicion& t = transiciones_[nodo];
            if (t.desde == 0 && t.variable == producciones_.inicial())
                siguen_[nodo].inserta(ReglasPartidas::finTexto);
            for (const auto& [simbolo, hasta] : destinos_[t.hasta]) {
                if (!producciones_.esVariable(simbolo))
                    siguen_[nodo].inserta(Producciones::indice(simbolo));
                else if (producciones_.esAnulable(simbolo))
                    lee_[nodo].push_back(nodos_.at({t.hasta, simbolo}));
            }
            for (const std::int16_t regla : producciones_.de(t.variable)) recorreRegla(nodo, regla);
        }
    }

    // From where a rule is begun to its end.
    void recorreRegla(std::size_t nodo, std::int16_t regla) {
        producciones_.exigeSeguir();
        const Cuerpo cuerpo = producciones_.cuerpo(regla);
        std::size_t estado = transiciones_[nodo].desde;
        for (std::size_t i = 0; i < cuerpo.size(); ++i) {
            if (producciones_.esVariable(cuerpo[i]) && producciones_.esAnulable(cuerpo.subspan(i + 1)))
                incluye_[nodos_.at({estado, cuerpo[i]})].push_back(nodo);
            estado = destinos_[estado].at(cuerpo[i]);
        }
        desde_[{estado, regla}].push_back(nodo);
    }

    const Producciones& producciones_;
    const AutomataLR& automata_;
    std::vector<std::map<Simbolo, std::size_t>> destinos_; // by state
    std::vector<Transicion> transiciones_;                 // over variables: the nodes
    std::map<std::pair<std::size_t, Simbolo>, std::size_t> nodos_;
    Relacion lee_;
    Relacion incluye_;
    std::vector<Bits> siguen_; // by node
    std::map<std::pair<std::size_t, std::int16_t>, std::vector<std::size_t>>
        desde_; // of a rule finished in a state
};

} // namespace

std::vector<std::vector<Bits>> adelantos(const Producciones& producciones, const AutomataLR& automata) {
    return CalculoAdelantos(producciones, automata).calcula();
}

} // namespace norvik::inline v0_2::exacto
