// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/metodo.hpp"

#include <cstdint>
#include <span>
#include <vector>

namespace norvik::inline v0_2 {

/// The reductions that another action kept out of a cell, sorted by cell, those included of which the classic
/// method says nothing. What a precedence decides is no conflict. A language that was loaded has none.
std::vector<Conflicto> conflictosDeTabla(const GramaticaLR& gramatica, Metodo metodo);

/// Those of a row and a column, from 1, or of a whole row.
std::span<const Conflicto> conflictosEn(std::span<const Conflicto> todos, std::int16_t fila,
                                        std::int16_t columna);
std::span<const Conflicto> conflictosEn(std::span<const Conflicto> todos, std::int16_t fila);

} // namespace norvik::inline v0_2
