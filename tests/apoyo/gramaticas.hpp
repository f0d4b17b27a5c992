// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/reglas.hpp"

#include <random>
#include <string>
#include <string_view>

namespace norvik::apoyo {

/// The rules of a text: «S -> a S | Ø; B -> b».
Reglas reglasDe(std::u16string_view texto);
/// One to three variables of up to three bodies, which have up to four of the symbols a, b, c, S, A, B.
std::u16string gramaticaAlAzar(std::mt19937& azar);

} // namespace norvik::apoyo
