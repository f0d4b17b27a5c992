#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace norvik {

/// The names of a language, by number. Numbers count from 1.
struct Vocabulario {
    struct Token {
        std::u16string nombre;
        std::u16string visible; ///< display name of its first definition, empty when that has none
        std::int16_t tipo = 0;  ///< kind of its first definition, a `TipoExpReg`
        std::int16_t base = 0;  ///< number base of its first definition, a `baseNumerica`
    };
    /// One of the definitions of a token.
    struct Definicion {
        std::int16_t token = 0; ///< number of its name
        std::int16_t tipo = 0;
    };
    struct Regla {
        std::u16string cabeza;
        std::u16string cuerpo;     ///< symbols separated by blanks; "Ø" or nothing when it is empty
        std::int16_t variable = 0; ///< number of its head
        std::int16_t ordinal = 0;  ///< its place among the rules of its head, from 1
        std::int16_t simbolos = 0; ///< of the body
    };

    std::vector<Token> tokens;             ///< one a name, in order of first registration
    std::vector<Definicion> definiciones;  ///< in order of registration
    std::vector<std::u16string> variables; ///< in order of first rule
    std::vector<Regla> reglas;
};

} // namespace norvik
