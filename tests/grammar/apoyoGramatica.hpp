// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"

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

/// «0: a=2 S=1; 1: $=1000; 2: $=-1/2»: entries other than 0 as they are read, and the loser of a conflict.
inline std::u16string tabla(const gramatica& g) {
    std::u16string texto;
    for (std::int16_t e = 0; e < g.GetDimensionFilasSLR(); ++e) {
        texto += (e == 0 ? u"" : u"; ") + aTexto(e) + u":";
        for (std::int16_t c = 0; c < g.GetNumSimbolos(); ++c) {
            const std::int16_t valor = g.GetElementoTablaSLR(e, c);
            if (valor == 0) continue;
            const auto columna = static_cast<std::int16_t>(c + 1);
            texto += u' ' + std::u16string(g.encabezadoColumna(columna)) + u'=' + aTexto(valor);
            const auto perdedora = g.conflicto(static_cast<std::int16_t>(e + 1), columna);
            if (perdedora != 0) texto += u'/' + aTexto(perdedora);
        }
    }
    return texto;
}

} // namespace norvik
