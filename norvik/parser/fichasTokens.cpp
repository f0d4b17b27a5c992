// SPDX-License-Identifier: MIT

#include "norvik/parser/fichasTokens.hpp"

#include "norvik/base/palabras.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/lectorTokens.hpp"
#include "norvik/parser/lectura.hpp"
#include "norvik/pattern/emparejador.hpp"

#include <string_view>

namespace norvik::inline v0_2 {

namespace {

void anota(FichaToken& ficha, const expresionRegular& definicion, std::int32_t lugar) {
    ficha.esperados.push_back(definicion.pseudoToken.empty() ? palabras::entreApostrofos(definicion.pseudoTmp)
                                                             : definicion.pseudoToken);
    if (esComentario(definicion.tipo) || definicion.nomToken == tokenError) return;
    std::optional<std::u16string> texto;
    if (definicion.expReg && definicion.expReg->esPalabra()) texto = definicion.expReg->texto();
    if (ficha.definicion == FichaToken::sinDefinicion) {
        ficha.definicion = lugar;
        ficha.nombre = definicion.pseudoToken.empty() ? definicion.nomToken : definicion.pseudoToken;
        ficha.textoFijo = texto;
    } else if (ficha.textoFijo != texto) {
        ficha.textoFijo.reset();
    }
}

} // namespace

FichasTokens::FichasTokens(const pilaTokens& lexico, const gramatica& gramatica)
    : fichas_(static_cast<std::size_t>(gramatica.simbolos().totalElementos())) {
    anotaDefiniciones(lexico, gramatica);
    const conjunto& simbolos = gramatica.simbolos();
    const std::int16_t fin = gramatica.GetCodigoToken(tokenFin);
    for (std::int16_t columna = 0; columna < simbolos.totalElementos(); ++columna) {
        const std::u16string_view simbolo = simbolos.simboloAt(static_cast<std::int16_t>(columna + 1));
        if (esMayusculaAZ(simbolo.front())) continue;
        FichaToken& ficha = fichas_[static_cast<std::size_t>(columna)];
        const bool esFin = columna == fin || simbolo == tokenFin;
        if (esFin) ficha.esperados = {lexico.toStringLexemasPorToken(tokenFin)};
        terminales_.push_back(columna);
        if (!esFin && ficha.definicion != FichaToken::sinDefinicion) insertables_.push_back(columna);
    }
}

void FichasTokens::anotaDefiniciones(const pilaTokens& lexico, const gramatica& gramatica) {
    std::int32_t lugar = 0;
    for (const expresionRegular* const definicion : lexico.tokensLenguaje()) {
        const std::int16_t columna = gramatica.GetCodigoToken(definicion->nomToken);
        if (columna >= 0 && static_cast<std::size_t>(columna) < fichas_.size())
            anota(fichas_[static_cast<std::size_t>(columna)], *definicion, lugar);
        ++lugar;
    }
}

} // namespace norvik::inline v0_2
