// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/spec/lenguaje.hpp"

#include <cstdint>
#include <memory>
#include <optional>

namespace norvik::inline v0_2 {

class Colorista;
class gramatica;
class pilaTokens;

/// The language that a control has now, as a value; the same one while nothing of it changes.
class LenguajeDeAhora {
public:
    LenguajeDeAhora(const pilaTokens& lexico, const gramatica& reglas) : lexico_(lexico), reglas_(reglas) {}

    const Lenguaje& dame();
    /// What colours its texts, with the control's colours.
    std::unique_ptr<Colorista> colorista();

private:
    struct Edicion {
        std::uint64_t lexico = 0;
        std::uint64_t reglas = 0;
        bool operator==(const Edicion&) const = default;
    };

    const pilaTokens& lexico_;
    const gramatica& reglas_;
    std::optional<Lenguaje> lenguaje_;
    Edicion edicion_; ///< of which it was made
};

} // namespace norvik::inline v0_2
