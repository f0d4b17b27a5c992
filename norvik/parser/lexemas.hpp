#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/base/rango.hpp"
#include "norvik/parser/textoAnalizado.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik {

/// A token of a text that was only read; its texts hold as long as the list that it comes from.
struct Lexema {
    std::int16_t token = 0;     ///< its number, from 1
    std::u16string_view nombre; ///< of the token
    std::u16string_view texto;  ///< delimiters of literals included
    Rango rango;
    bool esComentario = false;
};

/// The tokens of a text, which was read without parsing it, comments included. It owns a copy of the text,
/// and is moved but not copied.
class Lexemas {
public:
    explicit Lexemas(std::unique_ptr<const TextoAnalizado> texto, std::vector<Diagnostico> errores)
        : diagnosticos(std::move(errores)), texto_(std::move(texto)) {}

    /// One for each wrong character (reading goes on behind it), or why nothing could be read.
    std::vector<Diagnostico> diagnosticos;

    std::size_t size() const { return texto_ ? texto_->tokens.size() : 0; }
    /// From 0 on; raises `IndiceNoValido`.
    Lexema operator[](std::size_t indice) const;

private:
    std::unique_ptr<const TextoAnalizado> texto_;
};

} // namespace norvik
