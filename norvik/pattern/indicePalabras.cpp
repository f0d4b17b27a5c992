// SPDX-License-Identifier: MIT

// Search of many plain words at once. Most definitions of a language are reserved words and operators; giving
// each its own pass over the text is where recognition would spend its time. Here a position is looked at
// once: its first character chooses a bucket of words, a mask of their second characters rejects nearly all
// positions. What is left is looked up in the bucket, whose words are in the order of their folded
// characters: every word that stands at the position begins the last one that is not greater than the text
// there, so it is met on the way from that one to the words that begin it. A position costs the logarithm of
// the number of words, and no comparison is longer than the longest of them; nearly all are decided by four
// characters, which are compared as one number. A word that ignores case stands in the bucket of each form
// of its first character. Each word keeps the end of its last occurrence, so that its occurrences do not
// overlap, exactly as if it had been searched alone. A bucket that has nothing but an operator of one
// character, as most operators are, needs none of this.
#include "norvik/pattern/indicePalabras.hpp"

#include "norvik/pattern/mayusculas.hpp"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t posicionesPorTramo = 1024; // positions between two looks at the budget

constexpr std::uint64_t mascara(char16_t segundo) {
    return std::uint64_t{1} << (segundo % 64);
}

// All the characters that stand for one.
std::u16string formas(char16_t caracter, bool ignoraMayusculas) {
    std::u16string todas;
    if (ignoraMayusculas) todas = equivalentes(caracter);
    return todas.empty() ? std::u16string(1, caracter) : todas;
}

constexpr std::size_t enClave = 4;

// The end of a text counts as a character less than all.
char16_t plegadaEn(std::u16string_view texto, std::size_t i) {
    return i < texto.size() ? pliega(texto[i]) : u'\0';
}

std::uint64_t claveDe(std::u16string_view texto) {
    std::uint64_t clave = 0;
    for (std::size_t i = 0; i < enClave; ++i) clave = clave << 16 | plegadaEn(texto, i);
    return clave;
}

// How many characters a folded word and a text have in common at their beginnings.
std::size_t comunes(std::u16string_view plegada, std::u16string_view texto) {
    const std::size_t tope = std::min(plegada.size(), texto.size());
    std::size_t i = 0;
    while (i < tope && plegada[i] == pliega(texto[i])) ++i;
    return i;
}

bool esMayor(std::u16string_view plegada, std::u16string_view texto) {
    const std::size_t i = comunes(plegada, texto);
    return i < plegada.size() && (i == texto.size() || plegada[i] > pliega(texto[i]));
}

} // namespace

void IndicePalabras::aniade(std::u16string_view palabra, bool ignoraMayusculas, std::int32_t patron) {
    Palabra& nueva = palabras_.emplace_back();
    nueva.plegada = palabra;
    std::ranges::transform(palabra, nueva.plegada.begin(), pliega);
    if (!ignoraMayusculas) nueva.exacta = palabra;
    nueva.clave = claveDe(nueva.plegada);
    nueva.relevante = ~std::uint64_t{0} << 16 * (enClave - std::min(enClave, palabra.size()));
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
    buscaSignos();
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
        if (cubo.entradas.empty() || cubo.entradas.back().palabra != i)
            cubo.entradas.push_back({palabra.clave, i});
    }
}

void IndicePalabras::buscaSignos() {
    for (Cubo& cubo : cubos_) {
        if (cubo.entradas.size() != 1) continue;
        const Palabra& palabra = palabras_[cubo.entradas.front().palabra];
        if (palabra.plegada.size() != 1 || !equivalentes(palabra.plegada.front()).empty()) continue;
        cubo.signo = palabra.patron;
        cubo.caracter = palabra.plegada.front();
    }
}

void IndicePalabras::busca(std::u16string_view texto, Gasto& gasto, MapaCoincidencias& mapa) {
    for (Palabra& palabra : palabras_) palabra.libre = 0;
    if (palabras_.empty()) return;
    for (std::size_t desde = 0; desde < texto.size(); desde += posicionesPorTramo) {
        gasto.anota(posicionesPorTramo * maximo);
        const std::size_t hasta = std::min(texto.size(), desde + posicionesPorTramo);
        for (std::size_t i = desde; i < hasta; ++i) {
            const Cubo& cubo = cubos_[texto[i] % 256U];
            if ((cubo.segundos & mascara(plegadaEn(texto, i + 1))) == 0) continue;
            if (cubo.signo < 0)
                prueba(cubo, texto, i, mapa);
            else if (texto[i] == cubo.caracter)
                mapa.guarda(i, cubo.signo, 1);
        }
    }
}

// A word that every word at the position begins, if there is one: the last one whose key is not greater. What
// a longer word has after its key matters only between words with the key of the text.
std::uint32_t IndicePalabras::candidata(const Cubo& cubo, std::uint64_t clave,
                                        std::u16string_view resto) const {
    const Entrada* desde = cubo.entradas.data();
    for (std::size_t quedan = cubo.entradas.size(); quedan > 1;) {
        const std::size_t mitad = quedan / 2;
        desde = desde[mitad].clave <= clave ? desde + mitad : desde; // no branch: it could not be foreseen
        quedan -= mitad;
    }
    const bool hayIguales =
        desde->clave == clave && desde != cubo.entradas.data() && desde[-1].clave == clave;
    return hayIguales ? candidataEntre({cubo.entradas.data(), desde + 1}, resto) : desde->palabra;
}

std::uint32_t IndicePalabras::candidataEntre(std::span<const Entrada> entradas,
                                             std::u16string_view resto) const {
    const std::uint64_t clave = entradas.back().clave;
    const auto primera = std::ranges::lower_bound(entradas, clave, {}, &Entrada::clave);
    const auto mayor = std::partition_point(primera, entradas.end(), [&](const Entrada& entrada) {
        return !esMayor(palabras_[entrada.palabra].plegada, resto);
    });
    return (mayor == primera ? mayor : std::prev(mayor))->palabra;
}

void IndicePalabras::prueba(const Cubo& cubo, std::u16string_view texto, std::size_t posicion,
                            MapaCoincidencias& mapa) {
    const std::u16string_view resto = texto.substr(posicion);
    const std::uint64_t clave = claveDe(resto);
    std::uint32_t numero = candidata(cubo, clave, resto);
    for (; numero != ninguna; numero = palabras_[numero].anterior) {
        Palabra& palabra = palabras_[numero];
        const std::size_t longitud = palabra.plegada.size();
        if (((clave ^ palabra.clave) & palabra.relevante) != 0 || posicion < palabra.libre) continue;
        if (longitud > resto.size()) continue;
        if (longitud > enClave && comunes(palabra.plegada, resto) < longitud) continue;
        if (!resto.starts_with(palabra.exacta)) continue;
        palabra.libre = posicion + longitud;
        mapa.guarda(posicion, palabra.patron, longitud);
    }
}

} // namespace norvik::inline v0_2
