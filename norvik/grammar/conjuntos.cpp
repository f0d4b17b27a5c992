// SPDX-License-Identifier: MIT

#include "norvik/grammar/conjuntos.hpp"

namespace norvik::inline v0_2 {

std::u16string enTexto(const ConjuntoNumerado& conjunto, const ReglasPartidas& reglas) {
    std::u16string texto;
    for (const Simbolo simbolo : conjunto.elementos) {
        if (!texto.empty()) texto += u", ";
        texto += reglas.texto(simbolo);
    }
    return texto;
}

std::u16string enTexto(const std::vector<ConjuntoNumerado>& conjuntos, const ReglasPartidas& reglas) {
    std::u16string texto;
    for (const ConjuntoNumerado& conjunto : conjuntos) {
        if (!texto.empty()) texto += u' ';
        texto.append(reglas.texto(conjunto.nombre))
            .append(u"{")
            .append(enTexto(conjunto, reglas))
            .append(u"}");
    }
    return texto;
}

std::u16string enTexto(const Conjuntos& conjuntos, const ReglasPartidas& reglas) {
    return u"PRIMEROS " + enTexto(conjuntos.primeros, reglas) + u"\nSIGUIENTES " +
           enTexto(conjuntos.siguientes, reglas) + u"\nPREDICT " + enTexto(conjuntos.predict, reglas) + u"\n";
}

} // namespace norvik::inline v0_2
