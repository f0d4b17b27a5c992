// SPDX-License-Identifier: MIT

#pragma once

#include <random>
#include <string>

namespace norvik::apoyo {

/// A short specification whose LR(1) automaton nobody waits for.
inline std::string gramaticaLarga() {
    constexpr int variables = 150;
    constexpr int tokens = 40;
    std::mt19937 azar(1);
    std::string texto = "'% metodo: lr1\r\n";
    for (int t = 0; t < tokens; ++t)
        texto += "Token t" + std::to_string(t) + "=\"x" + std::to_string(t) + "\";\r\n";
    const auto token = [&] { return "t" + std::to_string(azar() % tokens); };
    const auto simbolo = [&] {
        const auto cual = azar() % (variables + tokens);
        return cual < tokens ? "t" + std::to_string(cual) : "A" + std::to_string(cual - tokens);
    };
    for (int v = 0; v < variables; ++v) {
        texto += "A" + std::to_string(v) + "->" + token();
        for (int cuerpo = 0; cuerpo < 4; ++cuerpo) {
            texto += " | ";
            for (auto cuantos = azar() % 4 + 1; cuantos > 0; --cuantos) texto += simbolo() + " ";
        }
        texto += ";\r\n";
    }
    return texto;
}

} // namespace norvik::apoyo
