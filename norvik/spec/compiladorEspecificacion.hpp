// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace norvik {

class Arbol;
class Sistema;
class gramatica;
class pilaTokens;

/// Walks the tree of a specification (or a part of it) and registers its definitions with the lexer, in any
/// case, and its rules with the grammar, in the order of the text. A definition that fails is shown titled
/// "Atención" and left out. Returns the rule body that the node stands for, empty for a node that is none.
/// Raises `SubindiceFueraDeIntervalo` at rule 1001 and `ArgumentoNoValido` for a tree that no specification
/// has; what was registered before stays.
std::u16string CompilaArbolEspecificacion(const Arbol& nodo, gramatica& g, pilaTokens& lexico,
                                          Sistema& sistema);

} // namespace norvik
