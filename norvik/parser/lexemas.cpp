// SPDX-License-Identifier: MIT

#include "norvik/parser/lexemas.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/parser/lectura.hpp"
#include "norvik/parser/textoAnalizado.hpp"

#include <utility>

namespace norvik::inline v0_2 {

Lexemas::Lexemas(std::unique_ptr<const TextoAnalizado> texto, std::vector<Diagnostico> errores)
    : diagnosticos(std::move(errores)), texto_(std::move(texto)) {}

Lexemas::Lexemas(Lexemas&&) noexcept = default;
Lexemas& Lexemas::operator=(Lexemas&&) noexcept = default;
Lexemas::~Lexemas() = default;

std::size_t Lexemas::size() const {
    return texto_ ? texto_->tokens.size() : 0;
}

Lexema Lexemas::operator[](std::size_t indice) const {
    if (indice >= size())
        throw IndiceNoValido(u"Índice no válido: el texto no tiene el token " +
                             aTexto(static_cast<std::int64_t>(indice)));
    const TokenSituado& token = texto_->tokens[indice];
    const auto [numero, tipo] = texto_->definicionDe(token);
    return {numero, texto_->nombreDe(token),
            std::u16string_view(texto_->texto).substr(token.inicio, token.fin - token.inicio),
            texto_->lugares.rango(token.inicio, token.fin), esComentario(tipo)};
}

} // namespace norvik::inline v0_2
