// Search of many plain words at once. Most definitions of a language are reserved words and operators; giving
// each its own pass over the text is where recognition would spend its time. Here a position is looked at
// once: its first character chooses a bucket of words, a mask of their second characters rejects nearly all
// positions. What is left is looked up in the bucket, whose words are in the order of their folded
// characters: every word that stands at the position begins the last one that is not greater than the text
// there, so it is met on the way from that one to the words that begin it. A position costs the logarithm of
// the number of words, and no comparison is longer than the longest of them. A word that ignores case stands
// in the bucket of each form of its first character. Each word keeps the end of its last occurrence, so that
// its occurrences do not overlap, exactly as if it had been searched alone.
#include "norvik/pattern/indicePalabras.hpp"

#include "norvik/pattern/mayusculas.hpp"

#include <algorithm>
#include <tuple>

namespace norvik {

namespace {

constexpr std::size_t tramo = 1024; // positions between two looks at the budget

constexpr std::uint64_t mascara(char16_t segundo) {
    return std::uint64_t{1} << (segundo % 64);
}

// All the characters that stand for one.
std::u16string formas(char16_t caracter, bool ignoraMayusculas) {
    std::u16string todas;
    if (ignoraMayusculas) todas = equivalentes(caracter);
    return todas.empty() ? std::u16string(1, caracter) : todas;
}

// How many characters of a folded word stand in a text, and whether the word comes after it in order.
struct Comparacion {
    std::size_t comunes;
    bool esMayor;
};

Comparacion compara(std::u16string_view plegada, std::u16string_view texto) {
    std::size_t i = 0;
    for (; i < plegada.size(); ++i) {
        if (i == texto.size()) return {i, true};
        const char16_t suya = pliega(texto[i]);
        if (plegada[i] != suya) return {i, plegada[i] > suya};
    }
    return {i, false};
}

} // namespace

void IndicePalabras::aniade(std::u16string_view palabra, bool ignoraMayusculas, std::int32_t patron) {
    Palabra& nueva = palabras_.emplace_back();
    nueva.plegada = palabra;
    std::ranges::transform(palabra, nueva.plegada.begin(), pliega);
    if (!ignoraMayusculas) nueva.exacta = palabra;
    nueva.patron = patron;
}

void IndicePalabras::ordena() {
    const auto clave = [](const Palabra& p) { return std::tie(p.plegada, p.exacta, p.patron); };
    std::ranges::sort(palabras_, [&](const auto& a, const auto& b) { return clave(a) < clave(b); });
    // Of words that are written alike only the first pattern can win.
    const auto iguales = [](const auto& a, const auto& b) {
        return a.plegada == b.plegada && a.exacta == b.exacta;
    };
    palabras_.erase(std::unique(palabras_.begin(), palabras_.end(), iguales), palabras_.end());
    enlaza();
    for (std::uint32_t i = 0; i < palabras_.size(); ++i) reparte(i);
}

void IndicePalabras::enlaza() {
    for (std::uint32_t i = 1; i < palabras_.size(); ++i) {
        std::uint32_t anterior = i - 1;
        while (anterior != ninguna && !palabras_[i].plegada.starts_with(palabras_[anterior].plegada))
            anterior = palabras_[anterior].anterior;
        palabras_[i].anterior = anterior;
    }
}

void IndicePalabras::reparte(std::uint32_t i) {
    const Palabra& palabra = palabras_[i];
    const bool ignora = palabra.exacta.empty();
    const char16_t primera = ignora ? palabra.plegada.front() : palabra.exacta.front();
    for (const char16_t forma : formas(primera, ignora)) {
        Cubo& cubo = cubos_[forma % 256U];
        cubo.segundos |= palabra.plegada.size() == 1 ? ~std::uint64_t{0} : mascara(palabra.plegada[1]);
        if (cubo.palabras.empty() || cubo.palabras.back() != i) cubo.palabras.push_back(i);
    }
}

void IndicePalabras::busca(std::u16string_view texto, Gasto& gasto, MapaCoincidencias& mapa) {
    for (Palabra& palabra : palabras_) palabra.libre = 0;
    if (palabras_.empty()) return;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (i % tramo == 0) gasto.anota(tramo * maximo);
        const Cubo& cubo = cubos_[texto[i] % 256U];
        const char16_t segundo = i + 1 < texto.size() ? pliega(texto[i + 1]) : u'\0';
        if ((cubo.segundos & mascara(segundo)) != 0) prueba(cubo, texto, i, mapa);
    }
}

void IndicePalabras::prueba(const Cubo& cubo, std::u16string_view texto, std::size_t posicion,
                            MapaCoincidencias& mapa) {
    const std::u16string_view resto = texto.substr(posicion);
    std::uint32_t hallada = ninguna;
    std::size_t comunes = 0;
    for (std::size_t desde = 0, hasta = cubo.palabras.size(); desde < hasta;) {
        const std::size_t medio = (desde + hasta) / 2;
        const Comparacion comparacion = compara(palabras_[cubo.palabras[medio]].plegada, resto);
        if (comparacion.esMayor) {
            hasta = medio;
        } else {
            desde = medio + 1;
            hallada = cubo.palabras[medio];
            comunes = comparacion.comunes;
        }
    }
    for (; hallada != ninguna; hallada = palabras_[hallada].anterior) {
        Palabra& palabra = palabras_[hallada];
        const std::size_t longitud = palabra.plegada.size();
        if (longitud > comunes || posicion < palabra.libre || !resto.starts_with(palabra.exacta)) continue;
        palabra.libre = posicion + longitud;
        mapa.guarda(posicion, palabra.patron, longitud);
    }
}

} // namespace norvik
