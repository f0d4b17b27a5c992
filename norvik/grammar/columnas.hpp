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
    std::size_t de(Simbolo simbolo) const {
        const int codigo = codigos_[static_cast<std::size_t>(simbolo)];
        if (codigo < 0) fallaSinColumna(simbolo);
        return static_cast<std::size_t>(codigo);
    }
    /// Of the symbol after an item's dot; raises also for a Ø beside other symbols.
    std::size_t de(Item item) const {
        const Simbolo simbolo = reglas_.cuerpo(item.regla)[static_cast<std::size_t>(item.punto)];
        if (simbolo == ReglasPartidas::vacio) fallaVaciaSuelta(reglas_, item.regla);
        return de(simbolo);
    }

private:
    [[noreturn]] void fallaSinColumna(Simbolo simbolo) const;

    const ReglasPartidas& reglas_;
    std::vector<int> codigos_;
};

} // namespace norvik::inline v0_2
