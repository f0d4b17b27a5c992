// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/pattern/patronAutomata.hpp"
#include "norvik/pattern/patronMaquina.hpp"

#include <optional>
#include <string_view>

namespace norvik::inline v0_2 {

/// The search of one pattern that is no plain word: what it is made ready to, and what texts have asked of it
/// so far. One search at a time; after a failure the next one is as good as the first.
class BusquedaPatron {
public:
    /// Raises what `Gasto` does.
    BusquedaPatron(const Patron& patron, Gasto& gasto);
    BusquedaPatron(const BusquedaPatron&) = delete;
    BusquedaPatron& operator=(const BusquedaPatron&) = delete;
    ~BusquedaPatron() = default;

    /// Begins with a subject, which outlives the search.
    void empieza(std::u16string_view sujeto, Gasto& gasto);
    /// The first position from `i` on where a match can begin; beyond the end when there is none.
    std::size_t inicioPosible(std::size_t i) const;
    /// The match that starts at a position; positions come in ascending order. Never undecided. Raises what
    /// `Presupuesto::exige` does, and `BusquedaDesbocada` when memory or steps of one attempt run out.
    Intento intenta(std::size_t posicion, Gasto& gasto);

    /// The automaton that finds the matches, for searches that walk together: an attempt's time is then in
    /// proportion to the characters that it looks at. Null when another way does.
    Automata* automata() { return automata_ ? &*automata_ : nullptr; }
    /// The units that a match can begin with; null when a match can be empty or its start is not known.
    const ClaseUnidades* primeras() const { return primeras_ ? &*primeras_ : nullptr; }

private:
    BusquedaPatron(const PatronListo& patron, Gasto& gasto);

    std::optional<ClaseUnidades> primeras_;
    Programa programa_;
    std::optional<Automata> automata_;
    Automata::Recuerdo recuerdo_;
    MemoriaMaquina memoria_;
    std::u16string_view sujeto_;
};

} // namespace norvik::inline v0_2
