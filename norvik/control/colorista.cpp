// SPDX-License-Identifier: MIT

#include "norvik/control/colorista.hpp"

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

} // namespace

Colorista::Colorista(Lenguaje lenguaje, const pilaTokens& lexico)
    : lenguaje_(std::move(lenguaje)), reconocedor_(lenguaje_.datos().lexico.definiciones()) {
    for (const expresionRegular* const definicion : lexico.tokensLenguaje())
        colores_.push_back(definicion->colorTexto == sinColor ? 0 : definicion->colorTexto);
}

Colorista::~Colorista() = default;

/// From token to token, as `Coloreado` walks.
std::vector<TramoDeColor> Colorista::colores(std::u16string_view texto, const Presupuesto& presupuesto) {
    reconocedor_.reconoce(texto, presupuesto, mapa_);
    std::vector<TramoDeColor> tramos;
    for (std::size_t pos = 0; pos < texto.size();) {
        const auto token = mapa_.en(pos);
        const bool hay = token && token->longitud > 0;
        const std::int32_t longitud = hay ? token->longitud : 1;
        pon(tramos, longitud, hay ? colores_[static_cast<std::size_t>(token->patron)] : 0);
        pos += static_cast<std::size_t>(longitud);
    }
    return tramos;
}

} // namespace norvik::inline v0_2
