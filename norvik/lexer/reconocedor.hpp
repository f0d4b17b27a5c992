// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/lexer/definicionesTokens.hpp"
#include "norvik/pattern/buscadorConjunto.hpp"
#include "norvik/pattern/mapaCoincidencias.hpp"

#include <string_view>

namespace norvik::inline v0_2 {

/// Recognition with the token definitions of a language. It serves one text at a time, and any number of
/// them: what texts have asked of its automata stays for the next one. Threads that share the definitions
/// have a recogniser each.
class Reconocedor {
public:
    /// The definitions outlive the recogniser and none is added meanwhile; they may move as a whole.
    explicit Reconocedor(const DefinicionesTokens& definiciones);

    /// Fills a map of the caller's with the tokens of a text of any length: at each 0-based position the one
    /// that starts there, as the place of its definition among `tokens()` and its length. Raises
    /// `BusquedaDesbocada`, whose text names the definition, when a search runs away or the budget is spent,
    /// `OperacionCancelada`, and `Desbordamiento` for a text beyond 32 bits; the map is then empty, and
    /// recogniser and map can be used again.
    void reconoce(std::u16string_view texto, const Presupuesto& presupuesto, MapaCoincidencias& mapa);

private:
    std::vector<const expresionRegular*> tokens_;
    BuscadorConjunto buscador_;
};

} // namespace norvik::inline v0_2
