// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/exacto/producciones.hpp"
#include "norvik/grammar/tablaLR.hpp"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Texts of which a table says something else than the grammar, in tokens.
struct FrasesDistintas {
    std::optional<std::vector<std::u16string>> rechazada; ///< it is one of the grammar
    std::optional<std::vector<std::u16string>> deMas;     ///< it is not, and the table accepts it
    bool agotado = false;                                 ///< there may be others, or shorter ones
};

struct LimiteFrases {
    std::size_t trabajo = 60'000;
    std::chrono::milliseconds plazo{300};
};

/// The shortest of each kind that come up within a limit.
FrasesDistintas buscaFrasesDistintas(const Reglas& reglas, const exacto::Producciones& producciones,
                                     const TablaLR& tabla, const LimiteFrases& limite = {});

} // namespace norvik::inline v0_2
