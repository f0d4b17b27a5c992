// SPDX-License-Identifier: MIT

#include "norvik/lexer/defectoDefinicion.hpp"

#include "norvik/lexer/expansion.hpp"

#include <variant>

namespace norvik::inline v0_2 {

namespace {

std::optional<DefectoPatron> defectoDe(const ErrorExpansion& error) {
    switch (error.causa) {
    case ErrorExpansion::Causa::CodigoMalEscrito:
        return DefectoPatron{MotivoPatron::CodigoMalEscrito, error.lugar};
    case ErrorExpansion::Causa::CodigoExcesivo:
        return DefectoPatron{MotivoPatron::CodigoExcesivo, error.lugar};
    case ErrorExpansion::Causa::DemasiadoLarga:
        return DefectoPatron{MotivoPatron::DemasiadoLargo, error.lugar};
    case ErrorExpansion::Causa::ReferenciaDesconocida:
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

std::optional<DefectoPatron> defectoDeDefinicion(std::u16string_view texto,
                                                 const DefinicionesTokens& definiciones) {
    const auto expansion = expande(texto, definiciones);
    if (const auto* const error = std::get_if<ErrorExpansion>(&expansion)) return defectoDe(*error);
    const auto& expandida = std::get<Expansion>(expansion);
    auto defecto = defectoDePatron(expandida.patron);
    if (defecto) defecto->lugar = expandida.enTexto(defecto->lugar);
    return defecto;
}

} // namespace norvik::inline v0_2
