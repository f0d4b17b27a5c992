// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace norvik::orden {

/// A text that was tried.
struct CasoProbado {
    std::u16string nombre;
    std::u16string diferencia; ///< empty when it is as it should be
};

/// A report as continuous integration reads it, in UTF-8.
std::string enJunit(const std::vector<CasoProbado>& casos);

} // namespace norvik::orden
