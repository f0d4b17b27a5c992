// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include "norvik/checks/historiaConflicto.hpp"

#include <QString>

namespace norvik::taller {

/// A conflict's story as a page, all but its trees: what there is to decide, the sentence, the state with its
/// items (links that `eleccionDeEnlace` reads, bold those of the rule that is lost), what the other sentence
/// in tokens shows, and what cures it.
QString historiaEnHtml(const LenguajeEstudiado& lenguaje, const HistoriaConflicto& historia);

} // namespace norvik::taller
