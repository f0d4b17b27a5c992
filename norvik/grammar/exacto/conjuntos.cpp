// SPDX-License-Identifier: MIT

#include "norvik/grammar/exacto/conjuntos.hpp"

#include <utility>

namespace norvik::inline v0_2::exacto {

namespace {

ConjuntoNumerado conjuntoDe(Simbolo nombre, const Bits& bits) {
    ConjuntoNumerado conjunto{nombre, {}};
    bits.paraCada([&](std::size_t simbolo) { conjunto.elementos.push_back(static_cast<Simbolo>(simbolo)); });
    return conjunto;
}

// What a rule hands to the variables of its body; says whether something was new.
bool reparte(const Producciones& producciones, int regla, std::vector<Bits>& siguientes) {
    const Cuerpo cuerpo = producciones.cuerpo(regla);
    Bits detras = siguientes[Producciones::indice(producciones.reglas().cabeza(regla))];
    bool crece = false;
    for (std::size_t i = cuerpo.size(); i > 0; --i) {
        const Simbolo simbolo = cuerpo[i - 1];
        if (producciones.esVariable(simbolo) && !producciones.de(simbolo).empty())
            crece = siguientes[Producciones::indice(simbolo)].une(detras) || crece;
        if (!producciones.esAnulable(simbolo)) detras = Bits(producciones.numSimbolos());
        producciones.uneComienzo(cuerpo.subspan(i - 1, 1), detras);
    }
    return crece;
}

} // namespace

std::vector<Bits> siguientes(const Producciones& producciones) {
    std::vector<Bits> siguientes(producciones.numSimbolos(), Bits(producciones.numSimbolos()));
    if (producciones.cabezas().empty()) return siguientes;
    siguientes[Producciones::indice(producciones.inicial())].inserta(ReglasPartidas::finTexto);
    for (bool crece = true; crece;) {
        crece = false;
        for (const Simbolo cabeza : producciones.cabezas())
            for (const std::int16_t regla : producciones.de(cabeza)) {
                producciones.exigeSeguir();
                crece = reparte(producciones, regla, siguientes) || crece;
            }
    }
    return siguientes;
}

Conjuntos creaConjuntos(const Producciones& producciones) {
    Conjuntos conjuntos;
    const std::vector<Bits> detras = siguientes(producciones);
    for (const Simbolo cabeza : producciones.cabezas()) {
        Bits primeros = producciones.primeros(cabeza);
        const auto& reglas = producciones.de(cabeza);
        for (const std::int16_t regla : reglas)
            if (producciones.esAnulable(producciones.cuerpo(regla))) primeros.inserta(ReglasPartidas::vacio);
        conjuntos.primeros.push_back(conjuntoDe(cabeza, primeros));
        conjuntos.siguientes.push_back(conjuntoDe(cabeza, detras[Producciones::indice(cabeza)]));
    }
    for (int regla = 1; regla <= producciones.reglas().numReglas(); ++regla) {
        const Simbolo cabeza = producciones.reglas().cabeza(regla);
        if (cabeza == ReglasPartidas::sinSimbolo) continue;
        Bits predict(producciones.numSimbolos());
        if (producciones.uneComienzo(producciones.cuerpo(regla), predict))
            predict.une(detras[Producciones::indice(cabeza)]);
        conjuntos.predict.push_back(conjuntoDe(cabeza, predict));
    }
    return conjuntos;
}

} // namespace norvik::inline v0_2::exacto
