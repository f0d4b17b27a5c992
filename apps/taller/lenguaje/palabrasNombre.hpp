// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include <QString>

#include <string_view>

namespace norvik::taller {

/// What a name of a specification means, in a few lines: the sets of a variable, the pattern of a definition
/// as it reads once it is expanded. Empty for one that means nothing.
QString palabrasDeNombre(const LenguajeEstudiado& lenguaje, std::u16string_view nombre);

} // namespace norvik::taller
