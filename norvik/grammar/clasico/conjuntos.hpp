// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/conjuntos.hpp"

#include <cstddef>
#include <stop_token>
#include <vector>

namespace norvik::inline v0_2::clasico {

/// Where the computation of the sets stands.
struct Pendientes {
    Pendientes() = default;
    /// Each run of consecutive rules with one head is pending, at its first rule.
    explicit Pendientes(const ReglasPartidas& reglas);

    std::vector<bool> primeros = std::vector<bool>(Reglas::maximo + 1); ///< by rule; 0 is not used
    std::vector<bool> siguientes = primeros;
    int actual = 0; ///< rule whose set is being computed
};

/// The sets of a grammar, by the steps that come to an end too early for a fixpoint.
/// Raises `SubindiceFueraDeIntervalo` when FOLLOW needs an undefined non-terminal.
Conjuntos creaConjuntos(const ReglasPartidas& reglas);
/// The same, into sets that are empty yet; nothing is pending afterwards. Raises `OperacionCancelada` once
/// that is asked for.
void calculaConjuntos(const ReglasPartidas& reglas, Conjuntos& conjuntos, Pendientes& pendientes,
                      const std::stop_token& parada = {});

} // namespace norvik::inline v0_2::clasico
