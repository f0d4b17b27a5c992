// SPDX-License-Identifier: MIT

#include "norvik/grammar/columnas.hpp"

#include "norvik/base/errores.hpp"

#include <string>

namespace norvik::inline v0_2 {

void reuneSimbolos(const ReglasPartidas& reglas, SimbolosTabla& simbolos) {
    std::vector<bool> vistos(reglas.numSimbolos());
    std::vector<bool> cabezas(reglas.numSimbolos());
    const auto inserta = [&](Simbolo simbolo, std::vector<bool>& yaEstan, conjunto& conj) {
        const auto indice = static_cast<std::size_t>(simbolo);
        if (yaEstan[indice]) return;
        yaEstan[indice] = true;
        conj.insertar(std::u16string(reglas.texto(simbolo)));
    };
    for (int regla = 1; regla <= reglas.numReglas(); ++regla) {
        if (reglas.cabeza(regla) == ReglasPartidas::sinSimbolo) continue;
        inserta(reglas.cabeza(regla), cabezas, simbolos.variables);
        for (const Simbolo simbolo : reglas.cuerpo(regla))
            if (!reglas.esVariable(simbolo) && simbolo != ReglasPartidas::vacio)
                inserta(simbolo, vistos, simbolos.terminales);
    }
    simbolos.todos.aniadeElementosConjunto(simbolos.terminales);
    simbolos.todos.insertar(u"$");
    simbolos.todos.aniadeElementosConjunto(simbolos.variables);
}

Columnas::Columnas(const ReglasPartidas& reglas, const TablaLR& tabla)
    : reglas_(reglas), codigos_(reglas.numSimbolos()) {
    for (std::size_t i = 0; i < codigos_.size(); ++i)
        codigos_[i] = tabla.codigo(reglas.texto(static_cast<Simbolo>(i)));
}

void Columnas::fallaSinColumna(Simbolo simbolo) const {
    throw SubindiceFueraDeIntervalo(u"Subíndice fuera de intervalo: el símbolo " +
                                    std::u16string(reglas_.texto(simbolo)) +
                                    u" no tiene columna en la tabla");
}

} // namespace norvik::inline v0_2
