// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/arbolEjemplo.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace norvik::inline v0_2 {

/// The shortest texts of a grammar's variables, as trees. The rules outlive it.
class DerivacionesMinimas {
public:
    explicit DerivacionesMinimas(const exacto::Producciones& producciones);

    /// Whether a text comes from a symbol.
    bool produce(Simbolo simbolo) const { return coste(simbolo).tokens < infinito; }
    bool produce(Cuerpo cuerpo) const;
    /// Tokens of the shortest text of a string, at most `maximo`.
    std::int32_t tokens(Cuerpo cuerpo) const;
    static constexpr std::int32_t maximo = 1'000'000;

    /// Whether texts of a symbol can begin with a token.
    bool empieza(Simbolo simbolo, Simbolo token);
    bool empieza(Cuerpo cuerpo, Simbolo token);
    /// Symbols of the shortest tree of `ponComienzo`.
    std::int32_t simbolosDeComienzo(Simbolo simbolo, Simbolo token);

    // They add nodes to a tree and say where those of the symbols asked for are.
    std::int32_t ponHoja(ArbolEjemplo& arbol, Simbolo simbolo) const;
    std::int32_t ponNodo(ArbolEjemplo& arbol, std::int16_t regla, std::vector<std::int32_t> hijos) const;
    /// A leaf for each symbol.
    std::vector<std::int32_t> ponHojas(ArbolEjemplo& arbol, Cuerpo cuerpo) const;
    /// A symbol, as a tree whose leaves are its shortest text.
    std::int32_t ponMinimo(ArbolEjemplo& arbol, Simbolo simbolo) const;
    std::vector<std::int32_t> ponMinimos(ArbolEjemplo& arbol, Cuerpo cuerpo) const;
    /// A symbol that `empieza` with a token, grown just until the token is its first leaf.
    std::int32_t ponComienzo(ArbolEjemplo& arbol, Simbolo simbolo, Simbolo token);
    /// A string that does, grown likewise.
    std::vector<std::int32_t> ponComienzo(ArbolEjemplo& arbol, Cuerpo cuerpo, Simbolo token);
    /// The rules by which a string comes to begin with a token, from above.
    std::vector<std::int16_t> reglasDeComienzo(Cuerpo cuerpo, Simbolo token);

    /// The tree with every leaf grown to its shortest text; nothing when that is absurdly long.
    std::optional<ArbolEjemplo> enTokens(const ArbolEjemplo& arbol) const;

private:
    static constexpr std::int32_t infinito = maximo + 1;

    struct Coste {
        std::int32_t tokens = infinito;
        std::int32_t nodos = infinito;
        bool operator<(const Coste& otro) const {
            return tokens != otro.tokens ? tokens < otro.tokens : nodos < otro.nodos;
        }
    };
    /// How a head comes to begin with a token: by a rule, whose symbols before a place become empty.
    struct Comienzo {
        std::int32_t simbolos = infinito;
        std::int16_t regla = 0;
        std::size_t sitio = 0;
    };
    using Comienzos = std::vector<Comienzo>; // by symbol

    Coste coste(Simbolo simbolo) const;
    Coste coste(Cuerpo cuerpo) const;
    void buscaMinimos();
    const Comienzos& comienzos(Simbolo token);
    bool mejora(Comienzos& comienzos, std::int16_t regla, Simbolo token) const;
    /// Where in a string the token begins: there or in the symbol there.
    std::optional<std::size_t> sitioDeComienzo(Cuerpo cuerpo, Simbolo token);

    const exacto::Producciones& producciones_;
    std::vector<Coste> costes_;         // by symbol
    std::vector<std::int16_t> minimas_; // rule of the shortest text, by symbol
    std::map<Simbolo, Comienzos> comienzos_;
};

} // namespace norvik::inline v0_2
