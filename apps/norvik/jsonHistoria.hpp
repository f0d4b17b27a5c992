// SPDX-License-Identifier: MIT

#pragma once

#include "escritorJson.hpp"

#include "norvik/checks/historiaConflicto.hpp"

#include <vector>

namespace norvik::orden {

/// The stories of a conflict as the field "historias" of an open object.
void escribeHistorias(Escritor& escritor, const std::vector<HistoriaConflicto>& historias);

} // namespace norvik::orden
