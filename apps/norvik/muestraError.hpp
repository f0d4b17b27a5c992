// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::orden {

enum class Estilo : std::uint8_t { Liso, EnColor };

/// "LINE:COLUMN: error: words [code]", in one line.
std::u16string lineaDeError(const Diagnostico& diagnostico);
/// What a person is shown of an error: "FILE:LINE:COLUMN: error: words [code]", the line that it stands in, a
/// caret under its whole range, and how it may be repaired. The text is the one that the diagnostic counts
/// in.
std::u16string muestraError(const Diagnostico& diagnostico, std::u16string_view fichero,
                            std::u16string_view texto, Estilo estilo = Estilo::Liso);

} // namespace norvik::orden
