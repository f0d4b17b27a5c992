// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/precedencia.hpp"
#include "norvik/grammar/reglasPartidas.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace norvik::inline v0_2::exacto {

/// What becomes of a token that could be shifted where a rule could be reduced.
enum class Decision : std::uint8_t { Conflicto, Desplaza, Reduce, Ninguna };

/// What is done before a token, and what could have been.
struct Eleccion {
    /// 0, nothing; positive, the shift; negative, the reduction of that rule; without a value when there is
    /// nothing to choose from.
    std::optional<std::int16_t> accion;
    /// The rules that only their place keeps out: conflicts.
    std::vector<std::int16_t> fuera;
};

/// The levels of a grammar's tokens and rules. A rule has the level of its last token.
class Prioridades {
public:
    /// Names that no rule uses are passed over; of two levels of a token the tighter one counts.
    Prioridades(const ReglasPartidas& reglas, const Precedencias& precedencias);

    /// The tighter of both wins; within a level, as it associates. A conflict when one of them has none.
    Decision decide(std::int16_t regla, Simbolo token) const;
    /// What is done before a token with these rules to reduce, in ascending order. A shift that a rule beats
    /// is gone for the rules behind it.
    Eleccion elige(Simbolo token, bool desplaza, std::span<const std::int16_t> reglas) const;

private:
    std::size_t nivel(Simbolo token) const { return niveles_[static_cast<std::size_t>(token)]; }

    const ReglasPartidas& reglas_;
    const Precedencias& precedencias_;
    std::vector<std::size_t> niveles_; // by symbol, from 1; 0 without one
};

} // namespace norvik::inline v0_2::exacto
