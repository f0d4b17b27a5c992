// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/reglasPartidas.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// A finished set of symbols in order of insertion.
struct ConjuntoNumerado {
    Simbolo nombre = ReglasPartidas::sinSimbolo;
    std::vector<Simbolo> elementos;
};

/// A set under construction. It is emptied in constant time and used again.
class ConjuntoDeTrabajo {
public:
    void vacia(std::size_t numSimbolos) {
        sellos_.resize(numSimbolos);
        ++turno_;
        elementos_.clear();
    }
    bool contiene(Simbolo simbolo) const { return sellos_[static_cast<std::size_t>(simbolo)] == turno_; }
    void inserta(Simbolo simbolo) {
        if (contiene(simbolo)) return;
        sellos_[static_cast<std::size_t>(simbolo)] = turno_;
        elementos_.push_back(simbolo);
    }
    void inserta(const std::vector<Simbolo>& simbolos) {
        for (const Simbolo simbolo : simbolos) inserta(simbolo);
    }
    const std::vector<Simbolo>& elementos() const { return elementos_; }

private:
    std::vector<Simbolo> elementos_;
    std::vector<std::uint32_t> sellos_;
    std::uint32_t turno_ = 0;
};

/// FIRST, FOLLOW and PREDICT of a grammar. A head may have several FIRST or FOLLOW sets, of which lookups by
/// name take the first.
struct Conjuntos {
    std::vector<ConjuntoNumerado> primeros;
    std::vector<ConjuntoNumerado> siguientes;
    std::vector<ConjuntoNumerado> predict; ///< one for each rule with a head
};

/// The members joined by ", ".
std::u16string enTexto(const ConjuntoNumerado& conjunto, const ReglasPartidas& reglas);
/// «A{a, b} B{c}»
std::u16string enTexto(const std::vector<ConjuntoNumerado>& conjuntos, const ReglasPartidas& reglas);
/// The three, a line each.
std::u16string enTexto(const Conjuntos& conjuntos, const ReglasPartidas& reglas);

/// Position of the first set of each symbol in a list of sets, −1 when there is none.
class IndiceDeConjuntos {
public:
    IndiceDeConjuntos(const std::vector<ConjuntoNumerado>& lista, std::size_t numSimbolos)
        : lista_(&lista), sitios_(numSimbolos, -1) {
        for (std::size_t i = 0; i < lista.size(); ++i) anota(i);
    }
    void anota(std::size_t i) {
        int& sitio = sitios_[static_cast<std::size_t>((*lista_)[i].nombre)];
        if (sitio < 0) sitio = static_cast<int>(i);
    }
    bool terminado(Simbolo simbolo) const { return sitios_[static_cast<std::size_t>(simbolo)] >= 0; }
    const std::vector<Simbolo>& elementos(Simbolo simbolo) const {
        return (*lista_)[static_cast<std::size_t>(sitios_[static_cast<std::size_t>(simbolo)])].elementos;
    }

private:
    const std::vector<ConjuntoNumerado>* lista_;
    std::vector<int> sitios_;
};

} // namespace norvik::inline v0_2
