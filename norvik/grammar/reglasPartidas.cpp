// SPDX-License-Identifier: MIT

#include "norvik/grammar/reglasPartidas.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"

namespace norvik::inline v0_2 {

ReglasPartidas::ReglasPartidas(const Reglas& reglas, std::u16string_view otros) : reglas_(1) {
    numera(cadenaVacia);
    numera(u"$");
    for (const Regla& regla : reglas) parte(regla);
    paraCadaSimbolo(otros, [this](std::u16string_view simbolo) { numera(simbolo); });
}

ReglasPartidas::ReglasPartidas(const ReglasPartidas& otras)
    : reglas_(otras.reglas_), simbolosDeCuerpos_(otras.simbolosDeCuerpos_), simbolos_(otras.simbolos_),
      textos_(otras.textos_) {
    for (std::size_t i = 0; i < simbolos_.size(); ++i) {
        simbolos_[i].texto = textos_[i];
        numeros_.emplace(textos_[i], static_cast<Simbolo>(i));
    }
}

Simbolo ReglasPartidas::simbolo(std::u16string_view texto) const {
    const auto sitio = numeros_.find(texto);
    return sitio == numeros_.end() ? sinSimbolo : sitio->second;
}

Simbolo ReglasPartidas::numera(std::u16string_view texto) {
    if (const Simbolo conocido = simbolo(texto); conocido != sinSimbolo) return conocido;
    const auto nuevo = static_cast<Simbolo>(simbolos_.size());
    const std::u16string_view suyo = textos_.emplace_back(texto);
    numeros_.emplace(suyo, nuevo);
    simbolos_.push_back({.texto = suyo, .variable = !suyo.empty() && esMayusculaAZ(suyo.front())});
    return nuevo;
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
