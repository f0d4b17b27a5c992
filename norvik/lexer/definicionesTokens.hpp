// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/lexer/expresionRegular.hpp"
#include "norvik/lexer/parLT.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace norvik::inline v0_2 {

/// The definitions of a language in registration order: a value that moves as a whole. The definitions stay
/// where they are for as long as they are kept, and never change.
class DefinicionesTokens {
public:
    /// Every definition, auxiliary ones too, and the token definitions alone.
    const std::vector<std::unique_ptr<expresionRegular>>& todas() const { return todas_; }
    const std::vector<const expresionRegular*>& tokens() const { return tokens_; }
    /// The definitions of a name, null when none bears it.
    const std::vector<const expresionRegular*>* llamadas(std::u16string_view nombre) const;

    /// Adds a definition whose pattern is well formed. Raises `Desbordamiento` beyond 32,767 definitions,
    /// and when all patterns together, which double as they refer to each other, become too long.
    void archiva(std::unique_ptr<expresionRegular> definicion, bool esToken);
    void vacia();

    /// How a token may be written, for lists of expected tokens.
    std::u16string lexemasPorToken(std::u16string_view token) const;
    /// How a token that was read is named in messages.
    std::u16string pseudoTokenPorToken(const parLT& tokenLexema) const;

private:
    std::vector<std::unique_ptr<expresionRegular>> todas_;
    std::vector<const expresionRegular*> tokens_;
    std::unordered_map<std::u16string_view, std::vector<const expresionRegular*>> porNombre_;
    std::size_t caracteres_ = 0; ///< of all patterns
};

} // namespace norvik::inline v0_2
