// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"

#include <string>
#include <string_view>

namespace norvik::orden {

/// "LINE:COLUMN: error: words [code]", in one line.
std::u16string lineaDeError(const Diagnostico& diagnostico);
/// What a terminal shows of an error besides its message: "FILE:LINE:COLUMN: error: words [code]", the line
/// that it stands in, and a caret under its whole range. The text is the one that the diagnostic counts in.
std::u16string muestraError(const Diagnostico& diagnostico, std::u16string_view fichero,
                            std::u16string_view texto);

} // namespace norvik::orden
