// Recognition: every definition finds its own matches over the whole range, and at each position the longest
// one stays, of equal ones that of the definition registered first.
#include "norvik/lexer/pilaTokens.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik {

namespace {

constexpr std::u16string_view finalDelFichero = u"final del fichero";

bool esFinal(std::u16string_view token) {
    return token == u"$" || token == u"EOF";
}

std::u16string entreApostrofos(std::u16string_view texto) {
    return u"'" + std::u16string(texto) + u"'";
}

} // namespace

void pilaTokens::Inicializa() {
    mapaTokens_.vacia();
    buscador_.reset();
    porNombre_.clear();
    tokensLenguaje_.clear();
    expresionesRegulares_.clear();
    ++edicion_;
}

std::int16_t pilaTokens::getNumTokensLenguaje() const {
    return a16(tokensLenguaje_.size());
}

const expresionRegular& pilaTokens::getTokenLenguaje(std::int16_t numToken) const {
    if (numToken < 1 || static_cast<std::size_t>(numToken) > tokensLenguaje_.size()) throw IndiceNoValido();
    return *tokensLenguaje_[static_cast<std::size_t>(numToken) - 1];
}

const std::vector<const expresionRegular*>*
pilaTokens::definicionesLlamadas(std::u16string_view nombre) const {
    const auto sitio = porNombre_.find(nombre);
    return sitio == porNombre_.end() ? nullptr : &sitio->second;
}

MapaTokens& pilaTokens::ReconoceTokens(std::u16string_view Texto, std::int16_t TextStart,
                                       std::int16_t TextEnd) {
    mapaTokens_.vacia();
    if (TextEnd == -1 && Texto.size() > maximoTexto) throw TextoDemasiadoLargo();
    const std::int16_t inicio = TextStart == -1 ? std::int16_t{1} : TextStart;
    const std::int16_t fin = TextEnd == -1 ? a16(Texto.size() + 1) : TextEnd;
    const std::int16_t longitud = a16(fin - inicio);
    if (inicio < 1 || longitud < 0) throw ArgumentoNoValido();
    const auto desde = std::min(Texto.size(), static_cast<std::size_t>(inicio) - 1);
    const auto rango = Texto.substr(desde, static_cast<std::size_t>(longitud));
    mapaTokens_.reinicia(inicio, rango);
    reconoce(rango);
    return mapaTokens_;
}

void pilaTokens::reconoce(std::u16string_view rango) {
    if (!buscador_) buscador_.emplace(tokensLenguaje_);
    try {
        buscador_->busca(rango, mapaTokens_);
    } catch (...) {
        mapaTokens_.vacia();
        throw;
    }
}

std::u16string pilaTokens::toStringLexemasPorToken(std::u16string_view token) const {
    if (esFinal(token)) return std::u16string(finalDelFichero);
    std::u16string texto;
    bool primero = true;
    for (const expresionRegular* const definicion : tokensLenguaje_) {
        if (definicion->nomToken != token) continue;
        if (!primero) texto.append(u", ");
        primero = false;
        texto.append(definicion->pseudoToken.empty() ? entreApostrofos(definicion->pseudoTmp)
                                                     : definicion->pseudoToken);
    }
    return texto;
}

std::u16string pilaTokens::toStringPseudoTokenPorToken(const parLT& tokenLexema) const {
    if (esFinal(tokenLexema.GetToken())) return std::u16string(finalDelFichero);
    for (const expresionRegular* const definicion : tokensLenguaje_) {
        if (definicion->nomToken != tokenLexema.GetToken()) continue;
        return definicion->pseudoToken.empty() ? entreApostrofos(tokenLexema.GetLexema())
                                               : definicion->pseudoToken;
    }
    return {};
}

} // namespace norvik
