// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/lectorTexto.hpp"
#include "norvik/parser/lenguajeAnalisis.hpp"
#include "norvik/parser/textoAnalizado.hpp"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The tokens of a text from a wrong place on, by number, read as far ahead as somebody looks. Behind the
/// last one the end repeats itself. Wrong characters are passed over.
class EntradaTokens {
public:
    /// A run of wrong characters with nothing but blanks between them: 0-based, from the first to behind the
    /// last.
    struct Incorrectos {
        std::size_t inicio = 0;
        std::size_t fin = 0;
    };
    struct Token {
        Lectura lectura;
        TokenSituado sitio;
        std::int16_t columna = 0;
        Incorrectos incorrectos{}; ///< before it; empty when there are none
    };

    /// The reader has just read token 0, or the wrong character before it. All outlive the tokens.
    EntradaTokens(std::u16string_view texto, LectorTexto& lector, LenguajeAnalisis& lenguaje)
        : texto_(texto), lector_(lector), lenguaje_(lenguaje) {
        toma();
    }

    /// It holds until tokens are read or forgotten.
    const Token& en(std::size_t numero) {
        while (numero - primero_ >= tokens_.size()) {
            if (esFin(tokens_.back())) return tokens_.back();
            lector_.lee();
            toma();
        }
        return tokens_[numero - primero_];
    }
    static bool esFin(const Token& token) { return token.sitio.definicion == TokenLeido::fin; }
    /// Forgets those before one; the end stays.
    void olvidaHasta(std::size_t numero) {
        for (; primero_ < numero && tokens_.size() > 1; ++primero_) tokens_.pop_front();
    }

private:
    void toma() {
        const Incorrectos incorrectos = saltaIncorrectos();
        const Lectura& lectura = lector_.lectura();
        tokens_.push_back({lectura,
                           {lectura.leido.definicion, static_cast<std::uint32_t>(lectura.inicio - 1),
                            static_cast<std::uint32_t>(lectura.fin - 1)},
                           lenguaje_.columna(lectura.leido),
                           incorrectos});
    }
    Incorrectos saltaIncorrectos();

    std::u16string_view texto_;
    LectorTexto& lector_;
    LenguajeAnalisis& lenguaje_;
    std::deque<Token> tokens_;
    std::size_t primero_ = 0; ///< number of the first that is kept
};

} // namespace norvik::inline v0_2
