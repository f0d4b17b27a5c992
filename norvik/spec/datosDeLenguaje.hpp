// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramatica.hpp"
#include "norvik/grammar/reglas.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/analizador.hpp"
#include "norvik/parser/vocabulario.hpp"

#include <memory>
#include <mutex>
#include <vector>

namespace norvik::inline v0_2 {

/// The names of a complete lexer and of complete rules, numbered.
Vocabulario vocabularioDe(const pilaTokens& lexico, const Reglas& reglas);

/// What a language is. Filled once, then only read; who analyses takes an analyser of its own meanwhile, warm
/// from earlier texts when one is free.
class DatosDeLenguaje {
public:
    pilaTokens lexico;
    gramatica reglas;

    /// To be called when lexer and grammar are complete.
    void nombra();
    const std::shared_ptr<const Vocabulario>& vocabulario() const { return vocabulario_; }

    /// An analyser on loan.
    class Prestamo {
    public:
        explicit Prestamo(const DatosDeLenguaje& datos);
        Prestamo(const Prestamo&) = delete;
        Prestamo& operator=(const Prestamo&) = delete;
        ~Prestamo();
        Analizador* operator->() const { return analizador_.get(); }

    private:
        const DatosDeLenguaje& datos_;
        std::unique_ptr<Analizador> analizador_;
    };

private:
    std::shared_ptr<const Vocabulario> vocabulario_;
    mutable std::mutex cerrojo_;
    mutable std::vector<std::unique_ptr<Analizador>> libres_;
};

} // namespace norvik::inline v0_2
