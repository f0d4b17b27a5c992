#pragma once

#include "norvik/lexer/mapaTokens.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

/// Plain words that are searched together in one pass over a text.
class IndicePalabras {
public:
    /// Adds a word, which is not empty, for a definition by its place in registration order.
    void aniade(std::u16string_view palabra, bool ignoraMayusculas, std::int32_t definicion);
    /// Stores into the map every occurrence of every word, as each one's own search would find it.
    void busca(std::u16string_view texto, MapaTokens& mapa);

private:
    struct Palabra {
        std::u16string texto; ///< folded when it ignores case
        bool ignoraMayusculas = false;
        std::int32_t definicion = 0;
        std::size_t libre = 0; ///< end of the word's last occurrence in the search under way

        bool empieza(std::u16string_view resto) const;
    };
    /// A word by its place, and what its second character folds to; a word of one fits every second
    /// character.
    struct Candidata {
        std::uint32_t palabra = 0;
        char16_t segundo = 0;
        bool esDeUna = false;
    };
    /// The words that may begin with a character of a given low byte.
    struct Cubo {
        std::uint64_t segundos = 0; ///< low six bits of the second characters' folds; all for a word of one
        std::vector<Candidata> candidatas;
    };

    void prueba(Palabra& palabra, std::u16string_view texto, std::size_t posicion, MapaTokens& mapa);

    std::vector<Palabra> palabras_;
    std::array<Cubo, 256> cubos_ = {};
};

} // namespace norvik
