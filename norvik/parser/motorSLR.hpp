// SPDX-License-Identifier: MIT

#pragma once

// The SLR driver: a stack of states, one action of the table a step. A shift reads the next token, a
// reduction pops its rule's body and goes on from the state below over the rule's head. Runs of rules of one
// symbol are remembered, with what comes after them, and made at once when they come again. No tree is built
// meanwhile: who gives the tokens takes down what is done with them.
#include "norvik/grammar/gramatica.hpp"
#include "norvik/parser/cadenasReglas.hpp"
#include "norvik/parser/lenguajeAnalisis.hpp"
#include "norvik/parser/pilaSLR.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace norvik::inline v0_2 {

enum class Desenlace : std::uint8_t { Aceptado, ErrorLexico, ErrorSintactico };

/// One parse. `Curso` gives the tokens and takes the steps:
///   columna()          column of the token that is next, or a special one of `LenguajeAnalisis`
///   posicion()         its place, to be pushed with a state
///   desplaza()         it is shifted: goes on to the next
///   reduce(regla), reduce(reglas)
template <typename Curso>
class MotorSLR {
public:
    /// All outlive the parse.
    MotorSLR(Curso& curso, LenguajeAnalisis& lenguaje, CadenasReglas& cadenas)
        : curso_(curso), lenguaje_(lenguaje), cadenas_(cadenas) {
        pila_.PUSH(0, 0, 0);
    }

    /// Raises what the course raises, and `SubindiceFueraDeIntervalo` for a cell that names no state or rule.
    Desenlace ejecuta() {
        for (;;) {
            if (curso_.columna() == LenguajeAnalisis::columnaError) return Desenlace::ErrorLexico;
            if (curso_.columna() == LenguajeAnalisis::columnaDesconocida) return Desenlace::ErrorSintactico;
            const std::int16_t accion = reduce();
            if (accion == gramatica::aceptar) return Desenlace::Aceptado;
            if (accion == 0) return Desenlace::ErrorSintactico;
            apila(accion);
            curso_.desplaza();
        }
    }
    const pilaSLR& pila() const { return pila_; }

private:
    // Reduces as long as the token asks for it, and returns what the token asks for then: 0 also when the
    // table has no way on over a rule's head.
    std::int16_t reduce() {
        for (;;) {
            const std::int16_t accion = encadena();
            if (accion >= 0) return accion;
            const std::int16_t numRegla = a16(-accion);
            const auto regla = lenguaje_.regla(numRegla);
            curso_.reduce(numRegla);
            pila_.POP(regla.numElementos);
            const std::int16_t estado = lenguaje_.entrada(pila_.cima(), regla.columnaCabeza);
            if (estado == 0) return 0;
            apila(estado);
        }
    }

    // The first reductions, as long as their rules have one symbol. Returns what the token asks for then.
    std::int16_t encadena() {
        const CadenasReglas::Lugar lugar{pila_.debajo(), pila_.cima(), curso_.columna()};
        if (const auto* const conocida = cadenas_.en(lugar)) {
            if (conocida->longitud == 0) return conocida->accion;
            curso_.reduce(cadenas_.reglas(*conocida));
            cambiaCima(conocida->estado);
            return conocida->accion;
        }
        std::array<std::int16_t, CadenasReglas::maximo> reglas{};
        std::size_t longitud = 0;
        std::int16_t estado = lugar.cima;
        std::int16_t accion = 0;
        for (;; ++longitud) {
            accion = lenguaje_.entrada(estado, curso_.columna());
            if (accion >= 0 || longitud == reglas.size()) break;
            const auto regla = lenguaje_.regla(a16(-accion));
            if (regla.numElementos != 1) break;
            reglas[longitud] = a16(-accion);
            curso_.reduce(reglas[longitud]);
            estado = lenguaje_.entrada(lugar.debajo, regla.columnaCabeza);
            if (estado == 0) {
                pila_.POP();
                return 0;
            }
        }
        if (longitud != 0) cambiaCima(estado);
        cadenas_.guarda(lugar, estado, accion, std::span(reglas).first(longitud));
        return accion;
    }

    void apila(std::int16_t estado) {
        const auto [linea, columna] = curso_.posicion();
        pila_.PUSH(estado, linea, columna);
    }
    void cambiaCima(std::int16_t estado) {
        pila_.POP(1);
        apila(estado);
    }

    Curso& curso_;
    LenguajeAnalisis& lenguaje_;
    CadenasReglas& cadenas_;
    pilaSLR pila_;
};

} // namespace norvik::inline v0_2
