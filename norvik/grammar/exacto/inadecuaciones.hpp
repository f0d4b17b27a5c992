// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/grammar/exacto/estados.hpp"
#include "norvik/grammar/exacto/nucleoLr1.hpp"
#include "norvik/grammar/exacto/prioridades.hpp"

#include <cstddef>
#include <cstdint>
#include <set>
#include <tuple>
#include <vector>

namespace norvik::inline v0_2::exacto {

/// A reduction before a token, and what of a state's kernel it hangs on.
struct Contribucion {
    std::int16_t regla = 0;
    bool siempre = false; ///< whatever the look-aheads; else if the token is among those of one of `items`
    Bits items;           ///< numbers of items of the kernel

    bool operator==(const Contribucion&) const = default;
    bool operator<(const Contribucion& otra) const {
        return std::tie(regla, siempre, items) < std::tie(otra.regla, otra.siempre, otra.items);
    }
};

/// A token before which more than one thing can be done, in a state or further on from it.
struct Inadecuacion {
    Simbolo token = 0;
    bool desplaza = false; ///< a shift, or acceptance, is one of them
    std::vector<Contribucion> contribuciones;

    bool operator<(const Inadecuacion& otra) const {
        return std::tie(token, desplaza, contribuciones) <
               std::tie(otra.token, otra.desplaza, otra.contribuciones);
    }
};

/// Those of one state whose outcome hangs on the look-aheads.
using Inadecuaciones = std::set<Inadecuacion>;

/// Those of each state of the LALR(1) automaton, given by its states and their kernels. Raises
/// `Desbordamiento` when they are too many, and what `Presupuesto::exige` does.
std::vector<Inadecuaciones> buscaInadecuaciones(const Producciones& producciones,
                                                const Prioridades& prioridades,
                                                const std::vector<EstadoLR>& estados,
                                                const std::vector<NucleoLr1>& nucleos,
                                                const Presupuesto& presupuesto);

/// Two states of one kernel do the same wherever both do something.
bool coinciden(const Inadecuaciones& inadecuaciones, const Prioridades& prioridades, const NucleoLr1& uno,
               const NucleoLr1& otro);

} // namespace norvik::inline v0_2::exacto
