// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/cajaTexto.hpp"

#include <string>
#include <string_view>

namespace norvik::orden {

/// A coloured text with 24-bit colour sequences for a terminal. Black, the colour of a text without language,
/// is the terminal's own; no line leaves a colour behind.
std::string ansiDe(const CajaTexto& caja);
/// The same as one HTML page that needs nothing else.
std::string htmlDe(const CajaTexto& caja, std::u16string_view titulo);

} // namespace norvik::orden
