#include "norvik/grammar/reglasPartidas.hpp"

#include "norvik/base/texto.hpp"

namespace norvik {

ReglasPartidas::ReglasPartidas() : reglas_(1) {
    registra(cadenaVacia);
}

Simbolo ReglasPartidas::registra(std::u16string_view texto) {
    const auto [sitio, nuevo] = numeros_.try_emplace(texto, static_cast<Simbolo>(simbolos_.size()));
    if (nuevo)
        simbolos_.push_back({.texto = texto, .variable = !texto.empty() && esMayusculaAZ(texto.front())});
    return sitio->second;
}

Simbolo ReglasPartidas::numera(std::u16string_view texto) {
    const auto sitio = numeros_.find(texto);
    return sitio != numeros_.end() ? sitio->second : registra(textosPropios_.emplace_back(texto));
}

void ReglasPartidas::completa(const std::deque<Regla>& reglas) {
    while (reglas_.size() <= reglas.size()) parte(reglas[reglas_.size() - 1]);
}

void ReglasPartidas::parte(const Regla& regla) {
    Partida partida;
    partida.inicio = simbolosDeCuerpos_.size();
    if (!regla.cabeza.empty()) partida.cabeza = registra(regla.cabeza);
    paraCadaSimbolo(regla.cuerpo,
                    [this](std::u16string_view simbolo) { simbolosDeCuerpos_.push_back(registra(simbolo)); });
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

} // namespace norvik
