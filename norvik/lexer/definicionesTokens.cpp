// SPDX-License-Identifier: MIT

#include "norvik/lexer/definicionesTokens.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/palabras.hpp"
#include "norvik/base/texto.hpp"

#include <cstdint>
#include <limits>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t maximoPatrones = std::size_t{8} << 20; // in characters, of all together
constexpr std::u16string_view finalDelFichero = u"final del fichero";

bool esFinal(std::u16string_view token) {
    return token == u"$" || token == u"EOF";
}

} // namespace

const std::vector<const expresionRegular*>* DefinicionesTokens::llamadas(std::u16string_view nombre) const {
    const auto sitio = porNombre_.find(nombre);
    return sitio == porNombre_.end() ? nullptr : &sitio->second;
}

void DefinicionesTokens::archiva(std::unique_ptr<expresionRegular> definicion, bool esToken) {
    const std::size_t largo = definicion->expresion.size();
    if (largo > maximoPatrones - caracteres_)
        throw Desbordamiento(u"Desbordamiento: con la definición '" + definicion->nomER +
                             u"' los patrones del lenguaje, ya sustituidas sus referencias, pasan de " +
                             aTexto(std::int64_t{maximoPatrones}) + u" caracteres");
    if (todas_.size() == std::numeric_limits<std::int16_t>::max())
        throw Desbordamiento(u"Desbordamiento: el lenguaje pasa de 32767 definiciones de tokens");
    todas_.push_back(std::move(definicion));
    const expresionRegular* const nueva = todas_.back().get();
    try {
        if (esToken) tokens_.push_back(nueva);
        porNombre_[nueva->nomER].push_back(nueva);
    } catch (...) {
        const auto tocayas = porNombre_.find(nueva->nomER);
        if (tocayas != porNombre_.end() && tocayas->second.empty()) porNombre_.erase(tocayas);
        std::erase(tokens_, nueva);
        todas_.pop_back();
        throw;
    }
    caracteres_ += largo;
}

void DefinicionesTokens::vacia() {
    porNombre_.clear();
    tokens_.clear();
    todas_.clear();
    caracteres_ = 0;
}

std::u16string DefinicionesTokens::lexemasPorToken(std::u16string_view token) const {
    if (esFinal(token)) return std::u16string(finalDelFichero);
    std::u16string texto;
    bool primero = true;
    for (const expresionRegular* const definicion : tokens_) {
        if (definicion->nomToken != token) continue;
        if (!primero) texto.append(u", ");
        primero = false;
        texto.append(definicion->pseudoToken.empty() ? palabras::entreApostrofos(definicion->pseudoTmp)
                                                     : definicion->pseudoToken);
    }
    return texto;
}

std::u16string DefinicionesTokens::pseudoTokenPorToken(const parLT& tokenLexema) const {
    if (esFinal(tokenLexema.GetToken())) return std::u16string(finalDelFichero);
    for (const expresionRegular* const definicion : tokens_) {
        if (definicion->nomToken != tokenLexema.GetToken()) continue;
        return definicion->pseudoToken.empty() ? palabras::entreApostrofos(tokenLexema.GetLexema())
                                               : definicion->pseudoToken;
    }
    return {};
}

} // namespace norvik::inline v0_2
