// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace norvik {

/// Spanish words for an error number of the system (`errno`), to follow a colon.
std::u16string causaDelSistema(int codigo);

} // namespace norvik
