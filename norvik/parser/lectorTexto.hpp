// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/lexer/mapaTokens.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/lectura.hpp"

#include <string_view>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// Reads the tokens of a recognised text one by one, the last of them the end.
class LectorTexto {
public:
    /// All outlive the reader.
    LectorTexto(std::u16string_view texto, const pilaTokens& lexico, const MapaTokens& mapa)
        : texto_(texto), definiciones_(&lexico.tokensLenguaje()), mapa_(&mapa) {}

    const Lectura& lectura() const { return lectura_; }
    const Lectura& lee() { return leeEn(lectura_.fin); }
    /// The same from a 1-based position on.
    const Lectura& leeEn(std::int32_t posicion) {
        leeDesde(posicion, texto_, *mapa_, *definiciones_, lectura_);
        if (lectura_.leido.definicion == TokenLeido::fin) leeFinal();
        return lectura_;
    }

private:
    // An empty match at the very end is a token, once.
    void leeFinal() {
        const auto token = mapa_->ganadoraEn(lectura_.inicio);
        if (!token || std::exchange(finalLeido_, true)) return;
        lectura_.leido = {token->patron, {}};
    }

    std::u16string_view texto_;
    const std::vector<const expresionRegular*>* definiciones_;
    const MapaTokens* mapa_;
    Lectura lectura_;
    bool finalLeido_ = false;
};

} // namespace norvik::inline v0_2
