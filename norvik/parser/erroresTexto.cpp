// SPDX-License-Identifier: MIT

// The errors of a text, with what may really stand at their place. A cell of the table that is not empty
// promises too much: a reduction may be asked for by a token that nothing shifts in the end. So each token is
// tried on the stack as it was when the wrong token came, before any reduction was made for its sake: its
// reductions are made on a copy of the stack's top, which grows over the part that they have not touched,
// until it is shifted or fails.
#include "norvik/parser/erroresTexto.hpp"

#include "norvik/base/palabras.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/avanceLR.hpp"
#include "norvik/parser/fichasTokens.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

std::u16string describe(const pilaTokens& lexico, const TokenLeido& token) {
    if (token.definicion == TokenLeido::fin) return u"el final del fichero";
    const expresionRegular& definicion = *lexico.tokensLenguaje()[static_cast<std::size_t>(token.definicion)];
    return definicion.pseudoToken.empty() ? palabras::entreApostrofos(token.lexema) : definicion.pseudoToken;
}

} // namespace

Diagnostico caracterIncorrecto(std::u16string_view texto, std::size_t indice, const Lugares& lugares) {
    return caracteresIncorrectos(texto, indice, indice + largoDeCaracter(texto, indice), lugares);
}

Diagnostico caracteresIncorrectos(std::u16string_view texto, std::size_t inicio, std::size_t fin,
                                  const Lugares& lugares) {
    Diagnostico diagnostico{Codigo::CaracterIncorrecto, Gravedad::Error, lugares.rango(inicio, fin), {}};
    constexpr std::size_t maximo = 40; // to be read; the range tells the rest
    const std::u16string_view hallado = texto.substr(inicio, fin - inicio);
    diagnostico.partes.hallado = palabras::entreApostrofos(
        hallado.size() <= maximo ? std::u16string(hallado)
                                 : std::u16string(hallado.substr(0, maximo)) + u"…");
    return diagnostico;
}

std::vector<std::u16string> esperadosEn(std::span<const std::int16_t> pila, const FichasTokens& fichas,
                                        const LenguajeAnalisis& lenguaje) {
    PilaEnsayo ensayo(pila);
    std::vector<std::u16string> esperados;
    for (const std::int16_t columna : fichas.terminales()) {
        const Avance avance = ensaya(ensayo, pila, columna, lenguaje);
        if (avance != Avance::Desplazado && avance != Avance::Aceptado) continue;
        for (const std::u16string& texto : fichas.de(columna).esperados)
            if (std::ranges::find(esperados, texto) == esperados.end()) esperados.push_back(texto);
    }
    return esperados;
}

Diagnostico tokenInesperado(const Lectura& lectura, std::vector<std::u16string> esperados,
                            const Lugares& lugares, const pilaTokens& lexico) {
    const auto inicio = static_cast<std::size_t>(lectura.inicio) - 1;
    const auto fin = static_cast<std::size_t>(lectura.fin) - 1;
    Diagnostico diagnostico{Codigo::TokenInesperado, Gravedad::Error, lugares.rango(inicio, fin), {}};
    diagnostico.partes.hallado = describe(lexico, lectura.leido);
    diagnostico.partes.esperados = std::move(esperados);
    return diagnostico;
}

} // namespace norvik::inline v0_2
