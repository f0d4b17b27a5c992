#pragma once

#include "norvik/lexer/mapaTokens.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

class expresionRegular;

/// Words that are searched together in one pass over a text.
class GrupoPalabras {
public:
    void aniade(std::u16string palabra, std::int32_t definicion);
    /// To be called once, after the last word.
    void ordena();
    /// Stores every occurrence into the map; occurrences of the same word do not overlap.
    void busca(std::u16string_view texto, MapaTokens& mapa);
    bool vacio() const { return palabras_.empty(); }

private:
    struct Palabra {
        std::u16string texto;
        std::int32_t definicion = 0;
        std::size_t libre = 0; ///< end of the word's last occurrence in the search under way
    };
    /// The words whose first characters have the same low byte.
    struct Cubo {
        std::uint64_t segundos = 0; ///< low six bits of the second characters; all bits for a word of one
        std::size_t inicio = 0;
        std::size_t fin = 0;
    };

    void busca(Cubo cubo, std::u16string_view texto, std::size_t posicion, MapaTokens& mapa);

    std::vector<Palabra> palabras_;
    std::array<Cubo, 256> cubos_ = {};
};

/// The token definitions of a language divided in those that are plain words and the others, which need their
/// matcher.
class IndicePalabras {
public:
    explicit IndicePalabras(const std::vector<const expresionRegular*>& definiciones);

    /// Stores into the map every occurrence of every word, as each definition's own search would find it.
    void busca(std::u16string_view texto, MapaTokens& mapa);
    /// The definitions that are no words, by their place in registration order.
    const std::vector<std::int32_t>& resto() const { return resto_; }

private:
    GrupoPalabras exactas_;
    GrupoPalabras plegadas_;
    std::vector<std::int32_t> resto_;
    std::u16string textoPlegado_;
};

} // namespace norvik
