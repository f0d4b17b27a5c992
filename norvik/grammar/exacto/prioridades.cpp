// SPDX-License-Identifier: MIT

// Precedence as a way to settle conflicts (Aho, Johnson and Ullman 1975): between the token that could be
// shifted and the rule that could be reduced the one that binds tighter wins. That cures expressions written
// as they are read, «E -> E mas E | E por E», and says nothing of two rules that could both be reduced.
#include "norvik/grammar/exacto/prioridades.hpp"

#include <utility>

namespace norvik::inline v0_2::exacto {

Prioridades::Prioridades(const ReglasPartidas& reglas, const Precedencias& precedencias)
    : reglas_(reglas), precedencias_(precedencias), niveles_(reglas.numSimbolos()) {
    for (std::size_t i = 0; i < precedencias.size(); ++i)
        for (const std::u16string& token : precedencias[i].tokens)
            if (const Simbolo simbolo = reglas.simbolo(token); simbolo != ReglasPartidas::sinSimbolo)
                niveles_[static_cast<std::size_t>(simbolo)] = i + 1;
}

Decision Prioridades::decide(std::int16_t regla, Simbolo token) const {
    std::size_t suyo = 0;
    for (const Simbolo simbolo : reglas_.cuerpo(regla))
        if (!reglas_.esVariable(simbolo)) suyo = nivel(simbolo);
    const std::size_t delToken = nivel(token);
    if (suyo == 0 || delToken == 0) return Decision::Conflicto;
    if (suyo != delToken) return suyo > delToken ? Decision::Reduce : Decision::Desplaza;
    switch (precedencias_[suyo - 1].asociatividad) {
    case Asociatividad::Izquierda:
        return Decision::Reduce;
    case Asociatividad::Derecha:
        return Decision::Desplaza;
    case Asociatividad::Ninguna:
        return Decision::Ninguna;
    }
    return Decision::Conflicto;
}

Eleccion Prioridades::elige(Simbolo token, bool desplaza, std::span<const std::int16_t> reglas) const {
    std::vector<std::int16_t> quedan;
    for (const std::int16_t regla : reglas) {
        const Decision decision = desplaza ? decide(regla, token) : Decision::Conflicto;
        if (decision == Decision::Ninguna) return {std::int16_t{0}, {}};
        if (decision == Decision::Desplaza) continue;
        if (decision == Decision::Reduce) desplaza = false;
        quedan.push_back(regla);
    }
    if (desplaza) return {std::int16_t{1}, std::move(quedan)};
    if (quedan.empty()) return {};
    const auto reduce = static_cast<std::int16_t>(-quedan.front());
    quedan.erase(quedan.begin());
    return {reduce, std::move(quedan)};
}

} // namespace norvik::inline v0_2::exacto
