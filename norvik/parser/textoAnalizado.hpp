// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/lugares.hpp"
#include "norvik/parser/vocabulario.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// A token of a text: its definition by place in registration order (from 0), its first character and the
/// one behind its last, both 0-based and in UTF-16.
struct TokenSituado {
    std::int32_t definicion = 0;
    std::uint32_t inicio = 0;
    std::uint32_t fin = 0;
};

/// A text with its tokens, and all that is needed to tell what and where they are.
struct TextoAnalizado {
    TextoAnalizado(std::shared_ptr<const Vocabulario> nombres, std::u16string suTexto, Lugares::Unidad unidad)
        : vocabulario(std::move(nombres)), texto(std::move(suTexto)), lugares(texto, unidad) {}
    TextoAnalizado(const TextoAnalizado&) = delete; // the places refer to the text
    TextoAnalizado& operator=(const TextoAnalizado&) = delete;
    ~TextoAnalizado() = default;

    const Vocabulario::Definicion& definicionDe(const TokenSituado& token) const {
        return vocabulario->definiciones[static_cast<std::size_t>(token.definicion)];
    }
    std::u16string_view nombreDe(const TokenSituado& token) const {
        return vocabulario->tokens[static_cast<std::size_t>(definicionDe(token).token) - 1].nombre;
    }

    std::shared_ptr<const Vocabulario> vocabulario;
    std::u16string texto;
    Lugares lugares;
    std::vector<TokenSituado> tokens;
    std::vector<std::uint32_t> insertados; ///< which of them a repair put in, in order
};

} // namespace norvik::inline v0_2
