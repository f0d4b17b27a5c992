// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include "norvik/checks/historiaConflicto.hpp"

#include <vector>

namespace norvik::taller {

/// The repairs of a diagnostic, and the name that was meant in all places of one that nobody knows.
std::vector<Arreglo> arreglosDe(const Diagnostico& diagnostico);
/// What cures a conflict by a line at the head of the specification; nothing when its rules have to be
/// thought over.
std::vector<Arreglo> curasDe(const LenguajeEstudiado& lenguaje, const HistoriaConflicto& historia);

} // namespace norvik::taller
