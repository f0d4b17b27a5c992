// SPDX-License-Identifier: MIT

#pragma once

namespace norvik::inline v0_2 {

class ArbolSintactico;
class Traza;
class gramatica;

/// Builds the tree of an accepted parse from its trace, which is consumed. The tree must be empty. Raises
/// `IndiceNoValido` when the trace holds less than the tree needs; the tree is then empty again.
void construyeArbol(ArbolSintactico& arbol, Traza& traza, const gramatica& gramatica);

} // namespace norvik::inline v0_2
