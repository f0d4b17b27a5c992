// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Los nombres de un lenguaje, por número. Los números cuentan desde 1: el nombre del token `n` está en
/// `tokens[n - 1]`.
struct Vocabulario {
    /// Un nombre de token.
    struct Token {
        std::u16string nombre;
        std::u16string visible; ///< nombre para personas de su primera definición, vacío cuando no lo tiene
        std::int16_t tipo = 0;  ///< clase de su primera definición, un `TipoExpReg`
        std::int16_t base = 0;  ///< base numérica de su primera definición, una `baseNumerica`
    };
    /// Una de las definiciones de un token.
    struct Definicion {
        std::int16_t token = 0; ///< número de su nombre
        std::int16_t tipo = 0;
    };
    /// Una regla, de una sola alternativa.
    struct Regla {
        std::u16string cabeza;
        std::u16string cuerpo;     ///< sus símbolos separados por espacios; «Ø» o nada cuando es vacío
        std::int16_t variable = 0; ///< número de su cabeza
        std::int16_t ordinal = 0;  ///< su lugar entre las reglas de su cabeza, desde 1
        std::int16_t simbolos = 0; ///< del cuerpo
    };

    std::vector<Token> tokens;             ///< uno por nombre, en el orden de su primer registro
    std::vector<Definicion> definiciones;  ///< en el orden en que se registraron
    std::vector<std::u16string> variables; ///< en el orden de su primera regla
    std::vector<Regla> reglas;
};

} // namespace norvik::inline v0_2
