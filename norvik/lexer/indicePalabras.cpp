// Search of many plain words at once. Most definitions of a language are reserved words and operators; giving
// each its own pass over the text is where recognition would spend its time. Here a position is looked at
// once: its first character chooses a bucket of words, a mask of their second characters rejects nearly all
// positions, and what is left is compared. Each word keeps the end of its last occurrence, so that its
// occurrences do not overlap, exactly as if it had been searched alone. Words that ignore case are compared,
// folded, with the folded text.
#include "norvik/lexer/indicePalabras.hpp"

#include "norvik/lexer/expresionRegular.hpp"
#include "norvik/platform/mayusculas.hpp"

#include <algorithm>
#include <utility>

namespace norvik {

namespace {

constexpr std::uint64_t mascara(char16_t segundo) {
    return std::uint64_t{1} << (segundo % 64);
}

constexpr std::size_t cuboDe(std::u16string_view palabra) {
    return palabra.front() % 256U;
}

void pliegaTodo(std::u16string& texto) {
    for (char16_t& c : texto) c = pliega(c);
}

} // namespace

void GrupoPalabras::aniade(std::u16string palabra, std::int32_t definicion) {
    palabras_.push_back({std::move(palabra), definicion});
}

void GrupoPalabras::ordena() {
    std::ranges::stable_sort(palabras_, {}, [](const Palabra& palabra) { return cuboDe(palabra.texto); });
    for (std::size_t i = 0; i < palabras_.size(); ++i) {
        const std::u16string& texto = palabras_[i].texto;
        Cubo& cubo = cubos_[cuboDe(texto)];
        if (cubo.segundos == 0) cubo.inicio = i;
        cubo.fin = i + 1;
        cubo.segundos |= texto.size() == 1 ? ~std::uint64_t{0} : mascara(texto[1]);
    }
}

void GrupoPalabras::busca(std::u16string_view texto, MapaTokens& mapa) {
    for (Palabra& palabra : palabras_) palabra.libre = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const Cubo& cubo = cubos_[texto[i] % 256U];
        const char16_t segundo = i + 1 < texto.size() ? texto[i + 1] : u'\0';
        if ((cubo.segundos & mascara(segundo)) != 0) busca(cubo, texto, i, mapa);
    }
}

void GrupoPalabras::busca(Cubo cubo, std::u16string_view texto, std::size_t posicion, MapaTokens& mapa) {
    const auto resto = texto.substr(posicion);
    for (std::size_t i = cubo.inicio; i < cubo.fin; ++i) {
        Palabra& palabra = palabras_[i];
        if (posicion < palabra.libre || !resto.starts_with(palabra.texto)) continue;
        palabra.libre = posicion + palabra.texto.size();
        mapa.guarda(static_cast<std::int32_t>(posicion),
                    {palabra.definicion, static_cast<std::int32_t>(palabra.texto.size())});
    }
}

IndicePalabras::IndicePalabras(const std::vector<const expresionRegular*>& definiciones) {
    for (std::size_t i = 0; i < definiciones.size(); ++i) {
        const Emparejador& emparejador = *definiciones[i]->expReg;
        std::u16string palabra = emparejador.palabra().value_or(u"");
        const auto definicion = static_cast<std::int32_t>(i);
        const bool ignora = emparejador.ignoraMayusculas();
        if (ignora) pliegaTodo(palabra);
        if (palabra.empty())
            resto_.push_back(definicion);
        else
            (ignora ? plegadas_ : exactas_).aniade(std::move(palabra), definicion);
    }
    exactas_.ordena();
    plegadas_.ordena();
}

void IndicePalabras::busca(std::u16string_view texto, MapaTokens& mapa) {
    if (!exactas_.vacio()) exactas_.busca(texto, mapa);
    if (plegadas_.vacio()) return;
    textoPlegado_ = texto;
    pliegaTodo(textoPlegado_);
    plegadas_.busca(textoPlegado_, mapa);
}

} // namespace norvik
