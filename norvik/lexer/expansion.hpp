// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace norvik::inline v0_2 {

class DefinicionesTokens;

/// A definition text expanded: the pattern, and how it reads when it is a plain word.
struct Expansion {
    std::u16string patron;
    std::u16string lectura;

    /// From here on in the pattern comes what stands there in the definition text; a reference all from one
    /// place.
    struct Tramo {
        std::size_t enPatron = 0;
        std::size_t enTexto = 0;
        bool esReferencia = false;
    };
    std::vector<Tramo> tramos;

    /// Where in the definition text a place in the pattern comes from, both from 0.
    std::size_t enTexto(std::size_t enPatron) const;
};

/// Why a definition text has no expansion.
struct ErrorExpansion {
    enum class Causa { CodigoMalEscrito, CodigoExcesivo, ReferenciaDesconocida, DemasiadoLarga };

    Causa causa = Causa::DemasiadoLarga;
    std::u16string referencia; ///< the name that nothing bears
    std::size_t lugar = 0;     ///< in the definition text, from 0
};

/// Length that neither pattern nor reading may exceed, in characters.
inline constexpr std::size_t maximoPatron = 32767;

/// Expands a definition text: references to the definitions registered so far, character codes, escapes.
std::variant<Expansion, ErrorExpansion> expande(std::u16string_view texto,
                                                const DefinicionesTokens& definiciones);

/// The names between angle brackets of a definition text, in its order: views into it.
std::vector<std::u16string_view> referenciasDe(std::u16string_view texto);

} // namespace norvik::inline v0_2
