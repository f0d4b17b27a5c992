// SPDX-License-Identifier: MIT

#pragma once

#include "escritorJson.hpp"

#include "norvik/checks/historiaConflicto.hpp"

namespace norvik::orden {

/// The story of a conflict as the field "historia" of an open object.
void escribeHistoria(Escritor& escritor, const HistoriaConflicto& historia);

} // namespace norvik::orden
