// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/pattern/patronPrograma.hpp"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// What the machine keeps from one attempt to the next.
struct MemoriaMaquina {
    struct Entrada {
        std::uint32_t donde; ///< instruction to go on with, or the register to restore, marked
        std::int32_t valor;  ///< position, or the register's former value
    };
    std::vector<Entrada> pila;
    std::vector<std::int32_t> registros;
};

/// The exact matcher of the dialect, with which every other way of matching agrees: the end of the match that
/// starts at `inicio`, if there is one. Raises what `Presupuesto::exige` does, and `BusquedaDesbocada` when
/// memory or steps of one attempt run out.
std::optional<std::size_t> coincideMaquina(const Programa& programa, std::u16string_view sujeto,
                                           std::size_t inicio, MemoriaMaquina& memoria, Gasto& gasto);

} // namespace norvik::inline v0_2
