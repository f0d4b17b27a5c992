// SPDX-License-Identifier: MIT

// Reading is a walk over the map of one recognition. An empty match at the very end of the text is a token,
// once.
#include "norvik/parser/lectorTokens.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/palabras.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <utility>

namespace norvik::inline v0_2 {

LectorTokens::LectorTokens(pilaTokens& lexico, const FuenteTexto& editor)
    : lexico_(lexico), editor_(editor) {}

void LectorTokens::inicializa(const FuenteTexto& fuente) {
    const auto texto = fuente.texto();
    if (texto.size() > maximoTexto) throw TextoDemasiadoLargo();
    lexico_.ReconoceTokens(texto, 1, static_cast<std::int16_t>(texto.size() + 1));
    lectura_.fin = 1;
}

void LectorTokens::lee(const FuenteTexto& fuente) {
    leeDesde(lectura_.fin, fuente.texto(), lexico_.mapaTokens(), lexico_.tokensLenguaje(), lectura_);
    if (leido().definicion == TokenLeido::fin) leeFinal();
}

void LectorTokens::leeFinal() {
    MapaTokens& mapa = lexico_.mapaTokens();
    const auto token = mapa.ganadoraEn(posLectura());
    lectura_.leido = token ? TokenLeido{token->patron, mapa.texto(posLectura(), *token)}
                           : TokenLeido{TokenLeido::fin, tokenFin};
    mapa.borra(posLectura());
}

std::u16string_view LectorTokens::nombreLeido() const {
    if (leido().definicion == TokenLeido::fin) return tokenFin;
    if (leido().definicion == TokenLeido::desconocido) return tokenError;
    return lexico_.tokensLenguaje()[static_cast<std::size_t>(leido().definicion)]->nomToken;
}

void LectorTokens::recuerda(const FuenteTexto& fuente) {
    ultimoToken_ = nombreLeido();
    ultimoLexema_ = leido().lexema;
    ultimaPosicion_ = posicionToken(fuente);
}

std::u16string_view LectorTokens::textoReconocido() const {
    return lexico_.mapaTokens().texto();
}

parLT LectorTokens::devuelve(const FuenteTexto& fuente) {
    lee(fuente);
    recuerda(fuente);
    return {ultimoLexema_, ultimoToken_};
}

// The line services count from 0; the 1-based start is passed as it is, so that the line is that of the
// character after the token's first.
Posicion LectorTokens::posicionToken(const FuenteTexto& fuente) const {
    const std::int32_t linea = fuente.lineaDeCaracter(inicioToken());
    const std::int32_t columna = inicioToken() - fuente.inicioDeLinea(linea);
    return {linea + 1, columna == 0 ? 1 : columna};
}

std::int16_t LectorTokens::LineaToken() const {
    return a16(ultimaPosicion_.linea, u"la línea del token");
}

std::int32_t LectorTokens::ColumnaToken() const {
    return ultimaPosicion_.columna;
}

std::u16string LectorTokens::DameStringLineaColumnaToken() const {
    return palabras::lineaColumna(LineaToken(), ColumnaToken());
}

std::u16string LectorTokens::DameStringTokenLeido() const {
    const std::u16string descripcion =
        ultimoToken_ == tokenFin ? u"el final del fichero"
                                 : lexico_.toStringPseudoTokenPorToken({ultimoLexema_, ultimoToken_});
    return palabras::tokenLeido(descripcion, LineaToken(), ColumnaToken());
}

} // namespace norvik::inline v0_2
