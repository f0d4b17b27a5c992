// SPDX-License-Identifier: MIT

#include "norvik/control/colorista.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"

#include <utility>

namespace norvik::inline v0_2 {

namespace {

/// Puts a run behind others, as one with the last when that has its colour.
void pon(std::vector<TramoDeColor>& tramos, std::int32_t longitud, std::int32_t color) {
    if (!tramos.empty() && tramos.back().color == color) {
        tramos.back().longitud += longitud;
        return;
    }
    const std::int32_t inicio = tramos.empty() ? 0 : tramos.back().inicio + tramos.back().longitud;
    tramos.push_back({inicio, longitud, color});
}

/// What is written in one is not part of the language.
bool esLiteral(std::int16_t tipo) {
    return tipo == Norvik_ComentarioBloque || tipo == Norvik_ComentarioLinea || tipo == Norvik_Cadena ||
           tipo == Norvik_Caracter;
}

} // namespace

Colorista::Colorista(Lenguaje lenguaje, const pilaTokens& lexico)
    : lenguaje_(std::move(lenguaje)), reconocedor_(lenguaje_.datos().lexico.definiciones()) {
    for (const expresionRegular* const definicion : lexico.tokensLenguaje()) {
        colores_.push_back(definicion->colorTexto == sinColor ? 0 : definicion->colorTexto);
        sonLiterales_.push_back(esLiteral(definicion->tipo));
    }
}

Colorista::~Colorista() = default;

/// From token to token, as `Coloreado` walks.
std::vector<TramoDeColor> Colorista::colores(std::u16string_view texto, const Presupuesto& presupuesto) {
    literales_.clear();
    reconocedor_.reconoce(texto, presupuesto, mapa_);
    std::vector<TramoDeColor> tramos;
    for (std::size_t pos = 0; pos < texto.size();) {
        const auto token = mapa_.en(pos);
        const bool hay = token && token->longitud > 0;
        const std::int32_t longitud = hay ? token->longitud : 1;
        const auto patron = static_cast<std::size_t>(hay ? token->patron : 0);
        pon(tramos, longitud, hay ? colores_[patron] : 0);
        if (hay && sonLiterales_[patron]) literales_.push_back({a32(pos), a32(pos) + longitud});
        pos += static_cast<std::size_t>(longitud);
    }
    return tramos;
}

} // namespace norvik::inline v0_2
