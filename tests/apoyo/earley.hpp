// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/reglas.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::apoyo {

/// Whether a grammar has a sentence, tried with every set of items of Earley (1970); slow, and simple on
/// purpose. A symbol is a variable when it heads a rule.
bool deriva(const Reglas& reglas, const std::vector<std::u16string>& frase);

} // namespace norvik::apoyo
