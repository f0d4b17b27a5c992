// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/exacto/bits.hpp"
#include "norvik/grammar/reglasPartidas.hpp"

#include <vector>

namespace norvik::inline v0_2::exacto {

/// The rules as the textbook has them: a variable has all its rules, wherever they stand, an empty body has
/// no symbols, and it is known what a variable can begin with and whether it can be empty. A head in lower
/// case is a token in bodies.
class Producciones {
public:
    /// The rules outlive it. Raises `SubindiceFueraDeIntervalo` for a Ø beside other symbols.
    explicit Producciones(const ReglasPartidas& reglas);

    const ReglasPartidas& reglas() const { return reglas_; }
    std::size_t numSimbolos() const { return reglas_.numSimbolos(); }
    Simbolo inicial() const { return reglas_.cabeza(1); }
    /// The heads, in order of first rule.
    const std::vector<Simbolo>& cabezas() const { return cabezas_; }
    /// The rules of a head.
    const std::vector<std::int16_t>& de(Simbolo cabeza) const { return deCabeza_[indice(cabeza)]; }
    Cuerpo cuerpo(int regla) const { return reglas_.esVacia(regla) ? Cuerpo() : reglas_.cuerpo(regla); }
    bool esVariable(Simbolo simbolo) const { return reglas_.esVariable(simbolo); }

    bool esAnulable(Simbolo simbolo) const { return esVariable(simbolo) && anulables_[indice(simbolo)]; }
    bool esAnulable(Cuerpo cuerpo) const;
    /// The tokens that texts of a head begin with.
    const Bits& primeros(Simbolo cabeza) const { return primeros_[indice(cabeza)]; }
    /// Adds those of a string; says whether the string can be empty.
    bool uneComienzo(Cuerpo cuerpo, Bits& conjunto) const;

    static std::size_t indice(Simbolo simbolo) { return static_cast<std::size_t>(simbolo); }

private:
    void buscaAnulables();
    void buscaPrimeros();

    const ReglasPartidas& reglas_;
    std::vector<Simbolo> cabezas_;
    std::vector<std::vector<std::int16_t>> deCabeza_; // by symbol
    std::vector<bool> anulables_;                     // by symbol
    std::vector<Bits> primeros_;                      // by symbol; empty but of heads
};

} // namespace norvik::inline v0_2::exacto
