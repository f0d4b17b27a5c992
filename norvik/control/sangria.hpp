// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>

namespace norvik::inline v0_2 {

/// Whether the selection spans a line break.
bool hayVariasLineas(const CajaTexto& caja);
/// Puts so many spaces before each line that the selection touches, as one change of the text; lines without
/// characters stay as they are, and so do all colours. The same text stays selected.
void sangraLineas(const Prestado<CajaTexto>& caja, std::int32_t espacios);
/// Takes as many leading spaces away, or those that there are, or one tab character.
void quitaSangria(const Prestado<CajaTexto>& caja, std::int32_t espacios);

} // namespace norvik::inline v0_2
