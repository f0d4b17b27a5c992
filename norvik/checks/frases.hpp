// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/spec/lenguaje.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

struct OpcionesFrases {
    std::size_t cuantas = 0; ///< at random; 0 for few that use every rule
    std::uint32_t semilla = 1;
    bool mal = false;                                          ///< each with one error
    std::chrono::microseconds plazo = std::chrono::seconds(6); ///< for writing them
};

struct Frases {
    std::vector<std::u16string> textos;
    std::vector<std::int16_t>
        reglasSinUsar; ///< of few that use every rule: those that none could be found for
};

/// Texts of a language, each accepted by `analiza`, or refused with one error. The same options give the
/// same texts; there are fewer where none was found, or not in time: then they are the first of them.
Frases frasesDe(const Lenguaje& lenguaje, const OpcionesFrases& opciones);

} // namespace norvik::inline v0_2
