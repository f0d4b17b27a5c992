// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/spec/directivas.hpp"

#include <string>

namespace norvik::inline v0_2 {

class Arbol;
class Sistema;
class gramatica;
class pilaTokens;

/// Walks the tree of a specification (or a part of it) and registers its definitions with the lexer, and its
/// rules with the grammar, in the order of the text and as its directives ask. A definition that fails is
/// shown titled "Atención" and left out. Returns the rule body that the node stands for, empty for a node
/// that is none. Raises `SubindiceFueraDeIntervalo` at rule 1001 and `ArgumentoNoValido` for a tree that no
/// specification has; what was registered before stays.
std::u16string CompilaArbolEspecificacion(const Arbol& nodo, gramatica& g, pilaTokens& lexico,
                                          Sistema& sistema, const Directivas& directivas = {});

} // namespace norvik::inline v0_2
