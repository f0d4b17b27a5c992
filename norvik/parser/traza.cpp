// SPDX-License-Identifier: MIT

#include "norvik/parser/traza.hpp"

#include "norvik/base/texto.hpp"

namespace norvik::inline v0_2 {

void Traza::vaciaTraza(std::u16string_view texto) {
    pasos_.clear();
    desplazamientos_.clear();
    textos_ = texto;
    texto_ = texto;
}

void Traza::fallaLlena() {
    throw Desbordamiento(u"Desbordamiento: el árbol sintáctico no cabe en la memoria, o la tabla SLR no deja "
                         u"nunca de desplazar o reducir");
}

std::u16string_view Traza::tipoCimaTraza() const {
    return reglaCima() == 0 ? u"desplazamiento" : u"reduccion";
}

std::u16string Traza::valorCimaTraza() const {
    const std::int16_t regla = reglaCima();
    if (regla != 0) return aTexto(regla);
    return textos_.substr(desplazamientos_.back().inicio, desplazamientos_.back().longitud);
}

std::u16string Traza::lineaCimaTraza() const {
    return aTexto(desplazamientoCima().linea);
}

std::u16string Traza::columnaCimaTraza() const {
    return aTexto(desplazamientoCima().columna);
}

} // namespace norvik::inline v0_2
