// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <string>

namespace norvik::inline v0_2 {

/// Spanish words for an error number of the system (`errno`), to follow a colon.
NORVIK_API std::u16string causaDelSistema(int codigo);

} // namespace norvik::inline v0_2
