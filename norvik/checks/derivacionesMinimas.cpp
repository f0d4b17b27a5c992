// SPDX-License-Identifier: MIT

// Shortest derivations are a least fixpoint (Knuth 1977): the rules are gone through until a pass makes none
// cheaper. What a derivation costs are its tokens, then its nodes; as each rule costs a node, the cheapest
// trees have no cycles, the empty ones neither. Costs stop at a million: the shortest text of a ladder of 80
// rules that double has 2^80 tokens, and nobody asks for it. To begin with a token is the same on another
// measure: symbols that stand before its place are grown to nothing, those after it stay as they are.
#include "norvik/checks/derivacionesMinimas.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

using exacto::Producciones;

std::int32_t sumaAcotada(std::int32_t uno, std::int32_t otro) {
    return std::min(uno + otro, DerivacionesMinimas::maximo);
}

} // namespace

DerivacionesMinimas::DerivacionesMinimas(const Producciones& producciones)
    : producciones_(producciones), costes_(producciones.numSimbolos()), minimas_(producciones.numSimbolos()) {
    buscaMinimos();
}

void DerivacionesMinimas::buscaMinimos() {
    for (bool mejora = true; mejora;) {
        producciones_.exigeSeguir();
        mejora = false;
        for (const Simbolo cabeza : producciones_.cabezas()) {
            if (!producciones_.esVariable(cabeza)) continue;
            for (const std::int16_t regla : producciones_.de(cabeza)) {
                Coste suyo = coste(producciones_.cuerpo(regla));
                if (suyo.tokens == infinito) continue;
                suyo.nodos = sumaAcotada(suyo.nodos, 1);
                if (!(suyo < costes_[Producciones::indice(cabeza)])) continue;
                costes_[Producciones::indice(cabeza)] = suyo;
                minimas_[Producciones::indice(cabeza)] = regla;
                mejora = true;
            }
        }
    }
}

DerivacionesMinimas::Coste DerivacionesMinimas::coste(Simbolo simbolo) const {
    return producciones_.esVariable(simbolo) ? costes_[Producciones::indice(simbolo)] : Coste{1, 1};
}

DerivacionesMinimas::Coste DerivacionesMinimas::coste(Cuerpo cuerpo) const {
    Coste todo{0, 0};
    for (const Simbolo simbolo : cuerpo) {
        const Coste suyo = coste(simbolo);
        if (suyo.tokens == infinito) return {};
        todo = {sumaAcotada(todo.tokens, suyo.tokens), sumaAcotada(todo.nodos, suyo.nodos)};
    }
    return todo;
}

bool DerivacionesMinimas::produce(Cuerpo cuerpo) const {
    return std::ranges::all_of(cuerpo, [this](Simbolo simbolo) { return produce(simbolo); });
}

std::int32_t DerivacionesMinimas::tokens(Cuerpo cuerpo) const {
    return std::min(coste(cuerpo).tokens, maximo);
}

// Beginnings -----------------------------------------------------------------------------------------------

const DerivacionesMinimas::Comienzos& DerivacionesMinimas::comienzos(Simbolo token) {
    const auto [sitio, nuevo] = comienzos_.try_emplace(token, producciones_.numSimbolos());
    Comienzos& suyos = sitio->second;
    for (bool cambia = nuevo; cambia;) {
        producciones_.exigeSeguir();
        cambia = false;
        for (const Simbolo cabeza : producciones_.cabezas())
            if (producciones_.esVariable(cabeza))
                for (const std::int16_t regla : producciones_.de(cabeza))
                    cambia = mejora(suyos, regla, token) || cambia;
    }
    return suyos;
}

bool DerivacionesMinimas::mejora(Comienzos& comienzos, std::int16_t regla, Simbolo token) const {
    const Cuerpo cuerpo = producciones_.cuerpo(regla);
    Comienzo& mejor = comienzos[Producciones::indice(producciones_.reglas().cabeza(regla))];
    if (!produce(cuerpo)) return false;
    bool cambia = false;
    for (std::size_t i = 0; i < cuerpo.size(); ++i) {
        const auto detras = static_cast<std::int32_t>(cuerpo.size() - i - 1);
        const std::int32_t aqui =
            cuerpo[i] == token ? 1 : comienzos[Producciones::indice(cuerpo[i])].simbolos;
        if (aqui < infinito && sumaAcotada(aqui, detras) < mejor.simbolos) {
            mejor = {sumaAcotada(aqui, detras), regla, i};
            cambia = true;
        }
        if (!producciones_.esAnulable(cuerpo[i])) break;
    }
    return cambia;
}

bool DerivacionesMinimas::empieza(Simbolo simbolo, Simbolo token) {
    return simbolosDeComienzo(simbolo, token) < infinito;
}

bool DerivacionesMinimas::empieza(Cuerpo cuerpo, Simbolo token) {
    return produce(cuerpo) && sitioDeComienzo(cuerpo, token).has_value();
}

std::int32_t DerivacionesMinimas::simbolosDeComienzo(Simbolo simbolo, Simbolo token) {
    return simbolo == token ? 1 : comienzos(token)[Producciones::indice(simbolo)].simbolos;
}

std::optional<std::size_t> DerivacionesMinimas::sitioDeComienzo(Cuerpo cuerpo, Simbolo token) {
    for (std::size_t i = 0; i < cuerpo.size(); ++i) {
        if (empieza(cuerpo[i], token)) return i;
        if (!producciones_.esAnulable(cuerpo[i])) break;
    }
    return std::nullopt;
}

std::vector<std::int16_t> DerivacionesMinimas::reglasDeComienzo(Cuerpo cuerpo, Simbolo token) {
    std::vector<std::int16_t> reglas;
    Simbolo simbolo = cuerpo[*sitioDeComienzo(cuerpo, token)];
    while (simbolo != token) {
        const Comienzo& suyo = comienzos(token)[Producciones::indice(simbolo)];
        reglas.push_back(suyo.regla);
        simbolo = producciones_.cuerpo(suyo.regla)[suyo.sitio];
    }
    return reglas;
}

// Trees ----------------------------------------------------------------------------------------------------

std::int32_t DerivacionesMinimas::ponHoja(ArbolEjemplo& arbol, Simbolo simbolo) const {
    arbol.nodos.push_back({std::u16string(producciones_.reglas().texto(simbolo)), 0, {}});
    return static_cast<std::int32_t>(arbol.nodos.size() - 1);
}

std::int32_t DerivacionesMinimas::ponNodo(ArbolEjemplo& arbol, std::int16_t regla,
                                          std::vector<std::int32_t> hijos) const {
    const std::int32_t nodo = ponHoja(arbol, producciones_.reglas().cabeza(regla));
    arbol.nodos.back().regla = regla;
    arbol.nodos.back().hijos = std::move(hijos);
    return nodo;
}

std::vector<std::int32_t> DerivacionesMinimas::ponHojas(ArbolEjemplo& arbol, Cuerpo cuerpo) const {
    std::vector<std::int32_t> hojas;
    for (const Simbolo simbolo : cuerpo) hojas.push_back(ponHoja(arbol, simbolo));
    return hojas;
}

std::int32_t DerivacionesMinimas::ponMinimo(ArbolEjemplo& arbol, Simbolo simbolo) const {
    if (!producciones_.esVariable(simbolo)) return ponHoja(arbol, simbolo);
    struct Abierto {
        std::int16_t regla;
        std::vector<std::int32_t> hijos;
    };
    std::vector<Abierto> abiertos{{minimas_[Producciones::indice(simbolo)], {}}};
    while (true) {
        Abierto& ultimo = abiertos.back();
        const Cuerpo cuerpo = producciones_.cuerpo(ultimo.regla);
        if (ultimo.hijos.size() < cuerpo.size()) {
            const Simbolo hijo = cuerpo[ultimo.hijos.size()];
            if (producciones_.esVariable(hijo))
                abiertos.push_back({minimas_[Producciones::indice(hijo)], {}});
            else
                ultimo.hijos.push_back(ponHoja(arbol, hijo));
            continue;
        }
        const std::int32_t nodo = ponNodo(arbol, ultimo.regla, std::move(ultimo.hijos));
        abiertos.pop_back();
        if (abiertos.empty()) return nodo;
        abiertos.back().hijos.push_back(nodo);
    }
}

std::vector<std::int32_t> DerivacionesMinimas::ponMinimos(ArbolEjemplo& arbol, Cuerpo cuerpo) const {
    std::vector<std::int32_t> nodos;
    for (const Simbolo simbolo : cuerpo) nodos.push_back(ponMinimo(arbol, simbolo));
    return nodos;
}

std::int32_t DerivacionesMinimas::ponComienzo(ArbolEjemplo& arbol, Simbolo simbolo, Simbolo token) {
    std::vector<Comienzo> pasos;
    while (simbolo != token) {
        pasos.push_back(comienzos(token)[Producciones::indice(simbolo)]);
        simbolo = producciones_.cuerpo(pasos.back().regla)[pasos.back().sitio];
    }
    std::int32_t nodo = ponHoja(arbol, token);
    for (; !pasos.empty(); pasos.pop_back()) {
        const Cuerpo cuerpo = producciones_.cuerpo(pasos.back().regla);
        std::vector<std::int32_t> hijos = ponMinimos(arbol, cuerpo.first(pasos.back().sitio));
        hijos.push_back(nodo);
        std::ranges::copy(ponHojas(arbol, cuerpo.subspan(pasos.back().sitio + 1)), std::back_inserter(hijos));
        nodo = ponNodo(arbol, pasos.back().regla, std::move(hijos));
    }
    return nodo;
}

std::vector<std::int32_t> DerivacionesMinimas::ponComienzo(ArbolEjemplo& arbol, Cuerpo cuerpo,
                                                           Simbolo token) {
    const std::size_t sitio = *sitioDeComienzo(cuerpo, token);
    std::vector<std::int32_t> nodos = ponMinimos(arbol, cuerpo.first(sitio));
    nodos.push_back(ponComienzo(arbol, cuerpo[sitio], token));
    std::ranges::copy(ponHojas(arbol, cuerpo.subspan(sitio + 1)), std::back_inserter(nodos));
    return nodos;
}

std::optional<ArbolEjemplo> DerivacionesMinimas::enTokens(const ArbolEjemplo& arbol) const {
    constexpr std::int32_t maximoNodos = 5'000;
    std::int32_t nodos = 0;
    for (const NodoEjemplo& nodo : arbol.nodos)
        if (nodo.regla == 0)
            nodos = sumaAcotada(nodos, coste(producciones_.reglas().simbolo(nodo.simbolo)).nodos);
    if (nodos > maximoNodos) return std::nullopt;
    ArbolEjemplo crecido;
    std::vector<std::int32_t> nuevos; // where each node is in it
    for (const NodoEjemplo& nodo : arbol.nodos) {
        if (nodo.regla == 0) {
            nuevos.push_back(ponMinimo(crecido, producciones_.reglas().simbolo(nodo.simbolo)));
            continue;
        }
        std::vector<std::int32_t> hijos;
        for (const std::int32_t hijo : nodo.hijos) hijos.push_back(nuevos[static_cast<std::size_t>(hijo)]);
        nuevos.push_back(ponNodo(crecido, nodo.regla, std::move(hijos)));
    }
    return crecido;
}

} // namespace norvik::inline v0_2
