// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/grammar/exacto/bits.hpp"
#include "norvik/grammar/reglasPartidas.hpp"

#include <stop_token>
#include <vector>

namespace norvik::inline v0_2::exacto {

/// The rules as the textbook has them: a variable has all its rules, wherever they stand, an empty body has
/// no symbols, and it is known what a variable can begin with and whether it can be empty. A head in lower
/// case is a token in bodies.
class Producciones {
public:
    /// The rules outlive it. Raises `SubindiceFueraDeIntervalo` for a Ø beside other symbols, and, as all
    /// does that is made of it, `OperacionCancelada` once that is asked for.
    explicit Producciones(const ReglasPartidas& reglas, std::stop_token parada = {});

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

    const std::stop_token& parada() const { return parada_; }
    /// To be asked now and then by whatever grows with the grammar. Raises `OperacionCancelada`.
    void exigeSeguir() const { norvik::exigeSeguir(parada_); }

    static std::size_t indice(Simbolo simbolo) { return static_cast<std::size_t>(simbolo); }

private:
    void buscaAnulables();
    void buscaPrimeros();

    const ReglasPartidas& reglas_;
    std::stop_token parada_;
    std::vector<Simbolo> cabezas_;
    std::vector<std::vector<std::int16_t>> deCabeza_; // by symbol
    std::vector<bool> anulables_;                     // by symbol
    std::vector<Bits> primeros_;                      // by symbol; empty but of heads
};

} // namespace norvik::inline v0_2::exacto
