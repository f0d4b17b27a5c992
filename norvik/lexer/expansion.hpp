// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

namespace norvik {

class DefinicionesTokens;

/// A definition text expanded: the pattern, and how it reads when it is a plain word.
struct Expansion {
    std::u16string patron;
    std::u16string lectura;
};

/// Why a definition text has no expansion.
struct ErrorExpansion {
    enum class Causa { CodigoMalEscrito, ReferenciaDesconocida, Incorrecta };

    Causa causa = Causa::Incorrecta;
    std::u16string referencia; ///< the name that nothing bears
};

/// Length that neither pattern nor reading may exceed, in characters.
inline constexpr std::size_t maximoPatron = 32767;

/// Expands a definition text: references to the definitions registered so far, character codes, escapes.
std::variant<Expansion, ErrorExpansion> expande(std::u16string_view texto,
                                                const DefinicionesTokens& definiciones);

} // namespace norvik
