// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/vocabulario.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// Sentences of a grammar as sequences of tokens. A symbol is the number of a token, or minus that of a
/// variable; a name that nothing defines is 0, and no rule with it takes part.
class Derivaciones {
public:
    using Frase = std::vector<std::int16_t>;
    /// Picks one of some rules.
    using Eleccion = std::function<std::int16_t(std::span<const std::int16_t>)>;

    /// `sirve` says of a token by its number whether it may stand in a sentence.
    Derivaciones(const Vocabulario& vocabulario, const std::vector<bool>& sirve);

    /// A sentence that begins with the smallest way to a rule; what else it needs is picked as long as the
    /// derivation has no more tokens and rules than `hueco`, and then the smallest. Empty where the rule has
    /// none.
    Frase conRegla(std::int16_t regla, std::size_t hueco, const Eleccion& elige) const;
    /// The rule has a derivation that is not absurdly large.
    bool alcanza(std::int16_t regla) const { return largoCon(regla) <= maximo; }
    std::int16_t numReglas() const { return static_cast<std::int16_t>(reglas_.size()); }

    static constexpr std::size_t maximo = 5000;

private:
    struct Regla {
        std::size_t variable = 0;
        std::vector<std::int16_t> cuerpo;
        std::size_t largo = 0; ///< of the smallest derivation, in tokens and rules
    };
    /// Where a variable stands on the smallest way from the start symbol.
    struct Paso {
        std::int16_t regla = 0; ///< 0 for the start symbol
        std::size_t lugar = 0;
        std::size_t largo = 0; ///< of the rest of the derivation
    };

    const Regla& regla(std::int16_t numero) const { return reglas_[static_cast<std::size_t>(numero) - 1]; }
    std::size_t largoDe(std::int16_t simbolo) const;
    std::size_t largoCon(std::int16_t regla) const;
    void mide(const std::vector<bool>& sirve);
    void buscaPasos();
    std::vector<Paso> caminoA(std::int16_t regla) const;

    std::vector<Regla> reglas_;
    std::vector<std::vector<std::int16_t>> deVariable_; // its rules with a sentence, the smallest first
    std::vector<std::size_t> largos_;                   // by variable
    std::vector<Paso> pasos_;                           // by variable
};

} // namespace norvik::inline v0_2
