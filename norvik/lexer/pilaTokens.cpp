// SPDX-License-Identifier: MIT

// Recognition: every definition finds its own matches over the whole range, and at each position the longest
// one stays, of equal ones that of the definition registered first.
#include "norvik/lexer/pilaTokens.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/definicionesTokens.hpp"
#include "norvik/lexer/reconocedor.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

pilaTokens::pilaTokens()
    : definiciones_(std::make_unique<DefinicionesTokens>()), mapaTokens_(definiciones_->tokens()) {}

pilaTokens::~pilaTokens() = default;

void pilaTokens::Inicializa() {
    mapaTokens_.vacia();
    reconocedor_.reset();
    definiciones_->vacia();
    distingueMayusculas = false;
    ++edicion_;
}

const std::vector<std::unique_ptr<expresionRegular>>& pilaTokens::expresionesRegulares() const {
    return definiciones_->todas();
}

const std::vector<const expresionRegular*>& pilaTokens::tokensLenguaje() const {
    return definiciones_->tokens();
}

std::u16string pilaTokens::toStringLexemasPorToken(std::u16string_view token) const {
    return definiciones_->lexemasPorToken(token);
}

std::u16string pilaTokens::toStringPseudoTokenPorToken(const parLT& tokenLexema) const {
    return definiciones_->pseudoTokenPorToken(tokenLexema);
}

std::int16_t pilaTokens::getNumTokensLenguaje() const {
    return a16(tokensLenguaje().size(), u"el número de tokens");
}

const expresionRegular& pilaTokens::getTokenLenguaje(std::int16_t numToken) const {
    const auto& tokens = tokensLenguaje();
    if (numToken < 1 || static_cast<std::size_t>(numToken) > tokens.size())
        throw IndiceNoValido(u"Índice no válido: el lenguaje tiene " + aTexto(std::int64_t(tokens.size())) +
                             u" tokens, y se pidió el " + aTexto(numToken));
    return *tokens[static_cast<std::size_t>(numToken) - 1];
}

MapaTokens& pilaTokens::ReconoceTokens(std::u16string_view Texto, std::int16_t TextStart,
                                       std::int16_t TextEnd) {
    mapaTokens_.vacia();
    if (TextEnd == -1 && Texto.size() > maximoTexto) throw TextoDemasiadoLargo();
    const std::int16_t inicio = TextStart == -1 ? std::int16_t{1} : TextStart;
    const std::int16_t fin = TextEnd == -1 ? a16(Texto.size() + 1) : TextEnd;
    const std::int16_t longitud = a16(fin - inicio, u"la longitud del texto");
    if (inicio < 1 || longitud < 0)
        throw ArgumentoNoValido(u"Argumento o llamada a procedimiento no válidos: no se pueden reconocer las "
                                u"posiciones de " +
                                aTexto(inicio) + u" a " + aTexto(fin));
    const auto desde = std::min(Texto.size(), static_cast<std::size_t>(inicio) - 1);
    return reconoceRango(Texto.substr(desde, static_cast<std::size_t>(longitud)), inicio);
}

MapaTokens& pilaTokens::reconoceRango(std::u16string_view rango, std::int16_t inicio) {
    mapaTokens_.vacia();
    if (!reconocedor_) reconocedor_ = std::make_unique<Reconocedor>(*definiciones_);
    reconocedor_->reconoce(rango, Presupuesto(Presupuesto::plazoComun, cancelacion),
                           mapaTokens_.reinicia(inicio, rango));
    return mapaTokens_;
}

} // namespace norvik::inline v0_2
