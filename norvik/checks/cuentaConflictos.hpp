// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/historiaConflicto.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/grammar/opcionesTabla.hpp"

#include <vector>

namespace norvik::inline v0_2 {

/// The stories of the conflicts of a grammar whose table was made by an exact method with these options, in
/// the order of the table. The examples are tried on the table `enUso`: its own, or the classic one of the
/// same rules. None when it is cancelled before the first one.
std::vector<HistoriaConflicto> cuentaConflictos(const GramaticaLR& gramatica, const OpcionesTabla& opciones,
                                                const TablaLR& enUso, const LimitesHistorias& limites = {});

} // namespace norvik::inline v0_2
