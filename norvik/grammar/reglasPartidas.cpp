// SPDX-License-Identifier: MIT

#include "norvik/grammar/reglasPartidas.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/huella.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik::inline v0_2 {

ReglasPartidas::ReglasPartidas(const Reglas& reglas, std::u16string_view otros) : reglas_(1) {
    indexa();
    numera(cadenaVacia);
    numera(u"$");
    reglas_.reserve(static_cast<std::size_t>(reglas.total()) + 1);
    for (const Regla& regla : reglas) parte(regla);
    paraCadaSimbolo(otros, [this](std::u16string_view simbolo) { numera(simbolo); });
}

/// Twice the slots.
void ReglasPartidas::indexa() {
    constexpr std::size_t minimo = 64;
    ranuras_.assign(std::max(minimo, 2 * ranuras_.size()), sinSimbolo);
    for (std::size_t i = 0; i < simbolos_.size(); ++i)
        ranuras_[ranura(texto(simbolos_[i]))] = static_cast<Simbolo>(i);
}

/// The slot of a symbol, or the free one where it belongs.
std::size_t ReglasPartidas::ranura(std::u16string_view buscado) const {
    const std::size_t mascara = ranuras_.size() - 1;
    std::size_t i = huella(buscado) & mascara;
    while (ranuras_[i] != sinSimbolo && texto(ranuras_[i]) != buscado) i = (i + 1) & mascara;
    return i;
}

Simbolo ReglasPartidas::simbolo(std::u16string_view texto) const {
    return ranuras_[ranura(texto)];
}

Simbolo ReglasPartidas::numera(std::u16string_view texto) {
    std::size_t sitio = ranura(texto);
    if (ranuras_[sitio] != sinSimbolo) return ranuras_[sitio];
    if (2 * simbolos_.size() >= ranuras_.size()) {
        indexa();
        sitio = ranura(texto);
    }
    const auto nuevo = static_cast<Simbolo>(simbolos_.size());
    simbolos_.push_back({.inicio = letras_.size(),
                         .longitud = texto.size(),
                         .variable = !texto.empty() && esMayusculaAZ(texto.front())});
    letras_.insert(letras_.end(), texto.begin(), texto.end());
    return ranuras_[sitio] = nuevo;
}

void ReglasPartidas::parte(const Regla& regla) {
    Partida partida;
    partida.inicio = simbolosDeCuerpos_.size();
    if (!regla.cabeza.empty()) partida.cabeza = numera(regla.cabeza);
    paraCadaSimbolo(regla.cuerpo,
                    [this](std::u16string_view simbolo) { simbolosDeCuerpos_.push_back(numera(simbolo)); });
    if (simbolosDeCuerpos_.size() == partida.inicio) simbolosDeCuerpos_.push_back(vacio);
    partida.longitud = simbolosDeCuerpos_.size() - partida.inicio;
    reglas_.push_back(partida);
    if (partida.cabeza != sinSimbolo)
        anotaCabeza(partida.cabeza, numReglas(), simbolosDeCuerpos_[partida.inicio] == vacio);
}

void ReglasPartidas::anotaCabeza(Simbolo cabeza, int regla, bool conVacia) {
    DatosSimbolo& datos = simbolos_[static_cast<std::size_t>(cabeza)];
    if (conVacia) datos.conVacia = true;
    if (datos.primera == 0) datos.primera = datos.fin = regla;
    if (datos.fin == regla) ++datos.fin;
}

std::u16string chequea(const ReglasPartidas& reglas) {
    for (int r = reglas.numReglas(); r >= 1; --r) {
        Simbolo indefinido = ReglasPartidas::sinSimbolo;
        for (const Simbolo simbolo : reglas.cuerpo(r))
            if (reglas.esVariable(simbolo) && reglas.primera(simbolo) == 0) indefinido = simbolo;
        if (indefinido == ReglasPartidas::sinSimbolo) continue;
        const Simbolo cabeza = reglas.cabeza(r);
        const bool conCabeza = cabeza != ReglasPartidas::sinSimbolo;
        return u"La variable " + std::u16string(reglas.texto(indefinido)) +
               u" definida en la parte derecha de la regla " +
               (conCabeza ? std::u16string(reglas.texto(cabeza)) : std::u16string()) + u" no está definida.";
    }
    return {};
}

void fallaVaciaSuelta(const ReglasPartidas& reglas, int regla) {
    std::u16string texto(reglas.texto(reglas.cabeza(regla)));
    texto += u" ->";
    for (const Simbolo simbolo : reglas.cuerpo(regla)) texto.append(u" ").append(reglas.texto(simbolo));
    throw SubindiceFueraDeIntervalo(u"Subíndice fuera de intervalo: en la regla " + aTexto(regla) + u", " +
                                    texto +
                                    u", Ø está junto a otros símbolos y no tiene columna en la tabla");
}

} // namespace norvik::inline v0_2
