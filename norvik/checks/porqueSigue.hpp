// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/derivacionesMinimas.hpp"
#include "norvik/grammar/exacto/producciones.hpp"

#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// Why a token can follow a head, as few rules as it takes, one line each: that in which something that
/// begins with the token stands behind a variable, those by which the head ends that variable, those by which
/// the token begins what stands behind.
std::vector<std::u16string> porqueSigue(const exacto::Producciones& producciones,
                                        DerivacionesMinimas& minimas, Simbolo cabeza, Simbolo token);

} // namespace norvik::inline v0_2
