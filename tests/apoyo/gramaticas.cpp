// SPDX-License-Identifier: MIT

#include "apoyo/gramaticas.hpp"

#include "norvik/base/texto.hpp"

#include <algorithm>
#include <cstddef>

namespace norvik::apoyo {

Reglas reglasDe(std::u16string_view texto) {
    Reglas reglas;
    while (!texto.empty()) {
        const std::u16string_view regla = texto.substr(0, texto.find(u';'));
        texto = texto.substr(std::min(regla.size() + 1, texto.size()));
        const std::size_t flecha = regla.find(u"->");
        reglas.guarda(recorta(regla.substr(0, flecha)), recorta(regla.substr(flecha + 2)));
    }
    return reglas;
}

std::u16string gramaticaAlAzar(std::mt19937& azar) {
    const auto hasta = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(azar);
    };
    const std::u16string simbolos[] = {u"a", u"b", u"c", u"S", u"A", u"B"};
    std::u16string texto;
    const std::size_t variables = 1 + hasta(3);
    for (std::size_t v = 0; v < variables; ++v) {
        texto += (v == 0 ? u"" : u"; ") + simbolos[3 + v] + u" ->";
        for (std::size_t cuerpos = 1 + hasta(3); cuerpos > 0; --cuerpos) {
            std::u16string cuerpo;
            for (std::size_t largo = hasta(5); largo > 0; --largo)
                cuerpo += u" " + simbolos[hasta(2) == 0 ? hasta(3) : 3 + hasta(variables)];
            texto += (cuerpo.empty() ? u" Ø" : cuerpo) + (cuerpos > 1 ? u" |" : u"");
        }
    }
    return texto;
}

} // namespace norvik::apoyo
