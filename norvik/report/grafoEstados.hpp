// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramaticaLR.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// A way from a state of an automaton to another one. States count from 0.
struct Transicion {
    std::int16_t desde = 0;
    Simbolo simbolo = ReglasPartidas::sinSimbolo;
    std::int16_t hasta = 0;

    bool operator==(const Transicion&) const = default;
};

/// Those of an automaton, state by state, each once; the one of the start symbol from state 0 to 1 among
/// them, whether items ask for it or not.
std::vector<Transicion> transicionesDe(const GramaticaLR& gramatica);

/// The ways of an automaton, to be drawn and told. It keeps nothing of the grammar.
class GrafoEstados {
public:
    /// Raises `OperacionCancelada` once that is asked for.
    explicit GrafoEstados(const GramaticaLR& gramatica, const std::stop_token& parada = {});

    std::size_t estados() const { return llegadas_.size(); }
    const std::vector<Transicion>& transiciones() const { return transiciones_; }
    /// From state 0 to a state, by a text of the fewest tokens; none to state 0, and to one that no way leads
    /// to.
    std::vector<Transicion> camino(std::int16_t estado) const;
    /// The tokens of that text; nothing where no text leads, or only one of more than `maximoTokens`.
    std::optional<std::vector<std::u16string>> entrada(std::int16_t estado) const;
    static constexpr std::int64_t maximoTokens = 200;
    /// A state and those nearest to it, in order, as many as there are and may be.
    std::vector<std::int16_t> vecindad(std::int16_t estado, std::size_t maximo) const;

private:
    static constexpr std::size_t ninguna = static_cast<std::size_t>(-1);

    /// How a state is reached by a text of the fewest tokens, and then by the fewest transitions.
    struct Llegada {
        std::size_t transicion = ninguna; ///< the last
        std::int64_t tokens = 0;
        std::int64_t pasos = 0;
    };

    void buscaCaminos(const std::vector<std::int64_t>& tokens);

    std::vector<Transicion> transiciones_;
    std::vector<Llegada> llegadas_;                                  ///< by state
    std::vector<std::optional<std::vector<std::u16string>>> textos_; ///< shortest of a symbol
};

} // namespace norvik::inline v0_2
