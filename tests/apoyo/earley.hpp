// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/arbolEjemplo.hpp"
#include "norvik/grammar/reglas.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::apoyo {

/// Whether a grammar has a sentence, tried with every set of items of Earley (1970); slow, and simple on
/// purpose. A symbol is a variable when it heads a rule.
bool deriva(const Reglas& reglas, const std::vector<std::u16string>& frase);

/// What is wrong with a tree, rule by rule, empty when it is one of this string by a grammar; variables may
/// be left as leaves.
std::string defectoDeArbol(const Reglas& reglas, const ArbolEjemplo& arbol,
                           const std::vector<std::u16string>& frase);

} // namespace norvik::apoyo
