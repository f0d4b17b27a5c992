// Search of many plain words at once. Most definitions of a language are reserved words and operators; giving
// each its own pass over the text is where recognition would spend its time. Here a position is looked at
// once: its first character chooses a bucket of words, a mask of their second characters rejects nearly all
// positions, each word's own second character most of the rest, and what is left is compared. A word that
// ignores case stands in the bucket of each form of its first character. Each word keeps the end of its last
// occurrence, so that its occurrences do not overlap, exactly as if it had been searched alone.
#include "norvik/lexer/indicePalabras.hpp"

#include "norvik/pattern/mayusculas.hpp"

#include <algorithm>

namespace norvik {

namespace {

constexpr std::uint64_t mascara(char16_t segundo) {
    return std::uint64_t{1} << (segundo % 64);
}

// All the characters that stand for one.
std::u16string formas(char16_t caracter, bool ignoraMayusculas) {
    std::u16string todas;
    if (ignoraMayusculas) todas = equivalentes(caracter);
    return todas.empty() ? std::u16string(1, caracter) : todas;
}

} // namespace

void IndicePalabras::aniade(std::u16string_view palabra, bool ignoraMayusculas, std::int32_t definicion) {
    Candidata candidata{static_cast<std::uint32_t>(palabras_.size())};
    candidata.esDeUna = palabra.size() == 1;
    if (!candidata.esDeUna) candidata.segundo = pliega(palabra[1]);
    for (const char16_t forma : formas(palabra.front(), ignoraMayusculas)) {
        segundos_[forma % 256U] |= candidata.esDeUna ? ~std::uint64_t{0} : mascara(candidata.segundo);
        auto& cubo = candidatas_[forma % 256U];
        if (cubo.empty() || cubo.back().palabra != candidata.palabra) cubo.push_back(candidata);
    }
    Palabra& nueva = palabras_.emplace_back(Palabra{std::u16string(palabra), ignoraMayusculas, definicion});
    if (ignoraMayusculas) std::ranges::transform(palabra, nueva.texto.begin(), pliega);
}

bool IndicePalabras::Palabra::empieza(std::u16string_view resto) const {
    if (!ignoraMayusculas) return resto.starts_with(texto);
    return resto.size() >= texto.size() &&
           std::equal(texto.begin(), texto.end(), resto.begin(),
                      [](char16_t plegado, char16_t c) { return plegado == pliega(c); });
}

void IndicePalabras::busca(std::u16string_view texto, MapaTokens& mapa) {
    for (Palabra& palabra : palabras_) palabra.libre = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const std::size_t cubo = texto[i] % 256U;
        const char16_t segundo = i + 1 < texto.size() ? pliega(texto[i + 1]) : u'\0';
        if ((segundos_[cubo] & mascara(segundo)) == 0) continue;
        for (const Candidata& candidata : candidatas_[cubo])
            if (candidata.esDeUna || candidata.segundo == segundo)
                prueba(palabras_[candidata.palabra], texto, i, mapa);
    }
}

void IndicePalabras::prueba(Palabra& palabra, std::u16string_view texto, std::size_t posicion,
                            MapaTokens& mapa) {
    if (posicion < palabra.libre || !palabra.empieza(texto.substr(posicion))) return;
    palabra.libre = posicion + palabra.texto.size();
    mapa.guarda(static_cast<std::int32_t>(posicion),
                {palabra.definicion, static_cast<std::int32_t>(palabra.texto.size())});
}

} // namespace norvik
