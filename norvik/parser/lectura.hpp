// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/lexer/expresionRegular.hpp"
#include "norvik/lexer/mapaTokens.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// A token in the form that costs nothing: the definition by its place in registration order, and a view of
/// the lexeme that holds until the next recognition or change of the text.
struct TokenLeido {
    static constexpr std::int32_t fin = -1;         ///< the end of the text
    static constexpr std::int32_t desconocido = -2; ///< a character that starts no token

    std::int32_t definicion = fin;
    std::u16string_view lexema;
};

/// One step of reading: the token, and where it starts and ends, 1-based.
struct Lectura {
    TokenLeido leido;
    std::int32_t inicio = 1;
    std::int32_t fin = 1;
};

constexpr bool esComentario(std::int16_t tipo) {
    return tipo == Norvik_ComentarioBloque || tipo == Norvik_ComentarioLinea;
}

/// A literal's text; a lexeme of another kind stays as it is.
constexpr std::u16string_view sinDelimitadores(std::u16string_view lexema, std::int16_t tipo) {
    const bool literal = tipo == Norvik_Cadena || tipo == Norvik_Caracter;
    return literal && lexema.size() > 2 ? lexema.substr(1, lexema.size() - 2) : lexema;
}

/// 2 for a character outside the first plane, which is a pair of units; else 1.
constexpr std::size_t largoDeCaracter(std::u16string_view texto, std::size_t indice) {
    const auto es = [&](std::size_t i, char16_t desde) {
        return i < texto.size() && texto[i] >= desde && texto[i] < desde + 0x400;
    };
    return es(indice, 0xD800) && es(indice + 1, 0xDC00) ? 2 : 1;
}

enum class Comentarios : std::uint8_t { SeSaltan, SeLeen };

/// Reads the token at a position of a recognised text or after it: blanks and comments are passed over, an
/// empty match counts as absent, else reading would never leave it. A wrong character ends where it starts,
/// so that reading stays there; at the end of the text stands `TokenLeido::fin`, whatever the map has there.
// Inline, so that its body is put into the readers, which ask for it at each token; and it fills what they
// keep: a copy of it waits for what has just been written piece by piece.
template <Comentarios comentarios = Comentarios::SeSaltan>
inline void leeDesde(std::int32_t posicion, std::u16string_view texto, const MapaTokens& mapa,
                     const std::vector<const expresionRegular*>& definiciones, Lectura& lectura) {
    constexpr auto esBlanco = [](char16_t c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; };
    while (posicion <= static_cast<std::int32_t>(texto.size())) {
        const auto token = mapa.ganadoraEn(posicion);
        if (!token || token->longitud == 0) {
            const std::size_t lugar = static_cast<std::size_t>(posicion) - 1;
            if (!esBlanco(texto[lugar])) {
                const auto caracter = texto.substr(lugar, largoDeCaracter(texto, lugar));
                lectura = {{TokenLeido::desconocido, caracter}, posicion, posicion};
                return;
            }
            ++posicion;
            continue;
        }
        const std::int16_t tipo = definiciones[static_cast<std::size_t>(token->patron)]->tipo;
        const std::int32_t fin = posicion + token->longitud;
        if (comentarios == Comentarios::SeLeen || !esComentario(tipo)) {
            const auto lexema = sinDelimitadores(mapa.texto(posicion, *token), tipo);
            lectura = {{token->patron, lexema}, posicion, fin};
            return;
        }
        posicion = fin;
    }
    lectura = {{TokenLeido::fin, {}}, posicion, posicion};
}

} // namespace norvik::inline v0_2
