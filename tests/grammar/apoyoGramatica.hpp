// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

/// A grammar from lines «cabeza -> cuerpo» separated by line feeds or semicolons.
inline std::unique_ptr<gramatica> gramaticaDe(std::u16string_view texto) {
    auto resultado = std::make_unique<gramatica>();
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find_first_of(u";\n"), texto.size());
        const std::u16string_view linea = texto.substr(0, fin);
        texto.remove_prefix(std::min(fin + 1, texto.size()));
        const std::size_t flecha = linea.find(u"->");
        if (flecha == std::u16string_view::npos) continue;
        resultado->SetRegla(recorta(linea.substr(0, flecha)), recorta(linea.substr(flecha + 2)));
    }
    return resultado;
}

inline void genera(gramatica& gramatica) {
    gramatica.inicializaConjuntos();
    gramatica.creaConjuntos();
    gramatica.creaAutomata();
    gramatica.creaTablaSLR();
}

inline std::unique_ptr<gramatica> generada(std::u16string_view texto) {
    auto resultado = gramaticaDe(texto);
    genera(*resultado);
    return resultado;
}

/// «A{a, b} B{c}»
inline std::u16string enTexto(const std::vector<conjunto>& conjuntos) {
    std::u16string texto;
    for (const conjunto& conj : conjuntos) {
        if (!texto.empty()) texto += u' ';
        texto += conj.nombre + u"{" + conj.toStringConjunto() + u"}";
    }
    return texto;
}

} // namespace norvik
