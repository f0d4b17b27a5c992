// Reading is a walk over the map of one recognition: at each position either a token starts, or a blank is
// skipped, or the character is an error. An empty match inside the text counts as absent, else reading would
// never leave it; at the very end it is a token, once.
#include "norvik/parser/lectorTokens.hpp"

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <utility>

namespace norvik {

namespace {

constexpr bool esBlanco(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

constexpr bool esComentario(std::int16_t tipo) {
    return tipo == Norvik_ComentarioBloque || tipo == Norvik_ComentarioLinea;
}

std::u16string_view sinDelimitadores(std::u16string_view lexema, std::int16_t tipo) {
    const bool literal = tipo == Norvik_Cadena || tipo == Norvik_Caracter;
    return literal && lexema.size() > 2 ? lexema.substr(1, lexema.size() - 2) : lexema;
}

} // namespace

LectorTokens::LectorTokens(pilaTokens& lexico, const FuenteTexto& editor)
    : lexico_(lexico), editor_(editor), ultimaFuente_(&editor) {}

void LectorTokens::inicializa(const FuenteTexto& fuente) {
    const auto texto = fuente.texto();
    if (texto.size() > maximoTexto) throw TextoDemasiadoLargo();
    lexico_.ReconoceTokens(texto, 1, static_cast<std::int16_t>(texto.size() + 1));
    posLectura_ = 1;
}

void LectorTokens::lee(const FuenteTexto& fuente) {
    ultimaFuente_ = &fuente;
    const auto texto = fuente.texto();
    const MapaTokens& mapa = lexico_.mapaTokens();
    while (posLectura_ <= static_cast<std::int32_t>(texto.size())) {
        inicioToken_ = posLectura_;
        const MapaTokens::Celda* const celda = mapa.celda(posLectura_);
        if (celda == nullptr || celda->longitud() == 0) {
            const auto caracter = texto.substr(static_cast<std::size_t>(posLectura_) - 1, 1);
            if (!esBlanco(caracter.front())) {
                leido_ = {TokenLeido::desconocido, caracter};
                return;
            }
            ++posLectura_;
            continue;
        }
        const std::int16_t tipo =
            lexico_.tokensLenguaje()[static_cast<std::size_t>(celda->definicion())]->tipo;
        posLectura_ += celda->longitud();
        if (esComentario(tipo)) continue;
        leido_ = {celda->definicion(), sinDelimitadores(mapa.texto(*celda), tipo)};
        return;
    }
    leeFinal();
}

void LectorTokens::leeFinal() {
    inicioToken_ = posLectura_;
    MapaTokens& mapa = lexico_.mapaTokens();
    const MapaTokens::Celda* const celda = mapa.celda(posLectura_);
    leido_ = celda == nullptr ? TokenLeido{TokenLeido::fin, tokenFin}
                              : TokenLeido{celda->definicion(), mapa.texto(*celda)};
    mapa.borra(posLectura_);
}

std::u16string_view LectorTokens::nombreLeido() const {
    if (leido_.definicion == TokenLeido::fin) return tokenFin;
    if (leido_.definicion == TokenLeido::desconocido) return tokenError;
    return lexico_.tokensLenguaje()[static_cast<std::size_t>(leido_.definicion)]->nomToken;
}

void LectorTokens::recuerda() {
    ultimoToken_ = nombreLeido();
    ultimoLexema_ = leido_.lexema;
}

std::u16string_view LectorTokens::textoReconocido() const {
    return lexico_.mapaTokens().texto();
}

parLT LectorTokens::devuelve(const FuenteTexto& fuente) {
    lee(fuente);
    recuerda();
    return {ultimoLexema_, ultimoToken_};
}

// The line services count from 0; the 1-based start is passed as it is, so that the line is that of the
// character after the token's first.
Posicion LectorTokens::posicionToken() const {
    const std::int32_t linea = ultimaFuente_->lineaDeCaracter(inicioToken_);
    const std::int32_t columna = inicioToken_ - ultimaFuente_->inicioDeLinea(linea);
    return {linea + 1, columna == 0 ? 1 : columna};
}

std::int16_t LectorTokens::LineaToken() const {
    return a16(posicionToken().linea);
}

std::int32_t LectorTokens::ColumnaToken() const {
    return posicionToken().columna;
}

std::u16string LectorTokens::DameStringLineaColumnaToken() const {
    return u"(Línea " + aTexto(LineaToken()) + u", Columna " + aTexto(ColumnaToken()) + u")";
}

std::u16string LectorTokens::DameStringTokenLeido() const {
    const std::u16string descripcion =
        ultimoToken_ == tokenFin ? u"el final del fichero"
                                 : lexico_.toStringPseudoTokenPorToken({ultimoLexema_, ultimoToken_});
    return u"Se ha encontrado " + descripcion + u" " + DameStringLineaColumnaToken();
}

} // namespace norvik
