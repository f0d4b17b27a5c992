// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

class gramatica;
class pilaTokens;

/// What errors and repairs say of a token of a grammar.
struct FichaToken {
    static constexpr std::int32_t sinDefinicion = -1;

    std::vector<std::u16string> esperados;   ///< how it may be written, one for each definition
    std::int32_t definicion = sinDefinicion; ///< the first that a text can have, by place; none: no text can
    std::optional<std::u16string> textoFijo; ///< the only text that it has
    std::u16string nombre;                   ///< what a person calls it
};

/// The tokens of a language by their column in the table; what is no token has nothing in it.
class FichasTokens {
public:
    FichasTokens() = default;
    FichasTokens(const pilaTokens& lexico, const gramatica& gramatica);

    const FichaToken& de(std::int16_t columna) const { return fichas_[static_cast<std::size_t>(columna)]; }
    /// The columns of all tokens, the end of the text among them.
    const std::vector<std::int16_t>& terminales() const { return terminales_; }
    /// Those that a text can have.
    const std::vector<std::int16_t>& insertables() const { return insertables_; }

private:
    void anotaDefiniciones(const pilaTokens& lexico, const gramatica& gramatica);

    std::vector<FichaToken> fichas_;
    std::vector<std::int16_t> terminales_;
    std::vector<std::int16_t> insertables_;
};

} // namespace norvik::inline v0_2
