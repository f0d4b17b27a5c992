// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/clasico/primeros.hpp"

#include <vector>

namespace norvik::inline v0_2::clasico {

/// FOLLOW sets: of every head (`calcula`), and of one (`recorre`). FIRST must be finished.
class CalculoSiguientes {
public:
    CalculoSiguientes(const ReglasPartidas& reglas, Conjuntos& conjuntos, Pendientes& pendientes,
                      CalculoPrimeros& primeros);

    /// Computes the FOLLOW set of every head.
    /// Raises `SubindiceFueraDeIntervalo` when a symbol that heads no rule has to be looked into.
    void calcula();

    /// Adds FOLLOW of a head, without Ø, to the set under construction.
    void recorre(Simbolo variable);
    ConjuntoDeTrabajo& trabajo() { return trabajo_; }
    const IndiceDeConjuntos& terminados() const { return terminados_; }

private:
    /// An occurrence of a symbol in a body.
    struct Aparicion {
        int regla = 0;
        std::size_t posicion = 0;
    };
    /// What a head takes from the bodies in which it stands: symbols that follow it, and heads whose FOLLOW
    /// is its own too.
    struct Aportacion {
        bool hecha = false;
        std::vector<Simbolo> elementos;
        std::vector<Simbolo> cabezas;
    };
    struct Marco {
        const Aportacion* aportacion = nullptr;
        std::size_t siguiente = 0;
    };

    void buscaApariciones(int regla);
    bool tapada(Cuerpo cuerpo, std::size_t desde, Simbolo simbolo) const;
    const Aportacion& aportacion(Simbolo variable);
    void aporta(Simbolo variable, Aportacion& aportacion);
    void entra(Simbolo variable);

    const ReglasPartidas& reglas_;
    Conjuntos& conjuntos_;
    Pendientes& pendientes_;
    CalculoPrimeros& primeros_;
    IndiceDeConjuntos terminados_;
    std::vector<std::vector<Aparicion>> apariciones_; // by symbol, in rule order
    std::vector<Aportacion> aportaciones_;            // by symbol
    ConjuntoDeTrabajo trabajo_;
    ConjuntoDeTrabajo visitados_;
    std::vector<Marco> pila_;
};

/// PREDICT of every rule with a head.
void calculaPredict(const ReglasPartidas& reglas, Conjuntos& conjuntos, Pendientes& pendientes,
                    CalculoPrimeros& primeros, const IndiceDeConjuntos& siguientes);

} // namespace norvik::inline v0_2::clasico
