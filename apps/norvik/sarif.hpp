// SPDX-License-Identifier: MIT

#pragma once

#include "salida.hpp"

#include "norvik/checks/revision.hpp"

#include <span>
#include <string>
#include <vector>

namespace norvik::orden {

/// What was found in a file.
struct Revisado {
    std::u16string fichero;
    std::vector<Hallazgo> hallazgos;
};

/// One document of SARIF 2.1.0.
void escribeSarif(std::span<const Revisado> revisados, Salida& salida);

} // namespace norvik::orden
