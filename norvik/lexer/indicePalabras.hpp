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
    void prueba(Palabra& palabra, std::u16string_view texto, std::size_t posicion, MapaTokens& mapa);

    std::vector<Palabra> palabras_;
    // By the low byte of the first character: what may begin so, and the low six bits of the second
    // characters' folds, all for a word of one.
    std::array<std::vector<Candidata>, 256> candidatas_ = {};
    std::array<std::uint64_t, 256> segundos_ = {};
};

} // namespace norvik
