#pragma once

#include "norvik/grammar/reglasPartidas.hpp"

#include <algorithm>
#include <vector>

namespace norvik {

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

/// FIRST, FOLLOW and PREDICT of a grammar, and where their computation stands.
struct ConjuntosGramatica {
    std::vector<ConjuntoNumerado> primeros;   ///< in the order in which they were finished
    std::vector<ConjuntoNumerado> siguientes; ///< likewise
    std::vector<ConjuntoNumerado> predict;    ///< one a rule
    std::vector<bool> pendientePrimeros;      ///< by rule index; index 0 is not used
    std::vector<bool> pendienteSiguientes;
    int indiceActual = 0; ///< rule whose set is being computed
};

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

} // namespace norvik
