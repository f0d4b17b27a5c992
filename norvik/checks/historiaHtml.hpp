// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/checks/historiaConflicto.hpp"

#include <string>

namespace norvik::inline v0_2 {

/// La historia de un conflicto como un fragmento de HTML (`<section class="historia">`) que cabe en cualquier
/// página: sin estilos ni guiones de otros, los árboles dibujados en SVG con el color del texto que los rodea
/// y escritos para quien no los ve.
NORVIK_API std::u16string enHtml(const HistoriaConflicto& historia);

} // namespace norvik::inline v0_2
