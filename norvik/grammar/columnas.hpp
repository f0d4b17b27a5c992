// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/estadoAutomata.hpp"
#include "norvik/grammar/reglasPartidas.hpp"
#include "norvik/grammar/tablaLR.hpp"

#include <cstddef>
#include <vector>

namespace norvik::inline v0_2 {

/// Adds to the symbols of a table those of a grammar: terminals and heads in order of first occurrence, then
/// all of them in column order.
void reuneSimbolos(const ReglasPartidas& reglas, SimbolosTabla& simbolos);

/// Column codes of a grammar's symbols in a table.
class Columnas {
public:
    Columnas(const ReglasPartidas& reglas, const TablaLR& tabla);

    /// Raises `SubindiceFueraDeIntervalo` for a symbol without a column.
    std::size_t de(Simbolo simbolo) const;
    /// Of the symbol after an item's dot; raises also for a Ø beside other symbols.
    std::size_t de(Item item) const;

private:
    const ReglasPartidas& reglas_;
    std::vector<int> codigos_;
};

} // namespace norvik::inline v0_2
