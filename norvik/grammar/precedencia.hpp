// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Qué se hace con «a op a op a» cuando todos los operadores son de un mismo nivel.
enum class Asociatividad : std::uint8_t { Izquierda, Derecha, Ninguna };

/// Tokens que atan igual.
struct NivelPrecedencia {
    Asociatividad asociatividad = Asociatividad::Izquierda;
    std::vector<std::u16string> tokens;
};

/// De los que menos atan a los que más.
using Precedencias = std::vector<NivelPrecedencia>;

} // namespace norvik::inline v0_2
