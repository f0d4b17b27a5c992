// SPDX-License-Identifier: MIT

#pragma once

#include "salida.hpp"

#include "norvik/spec/lenguaje.hpp"

#include <filesystem>
#include <optional>

namespace norvik::orden {

/// The language, as a value, of a specification or a loading module, or of a specification on standard input.
/// Nothing when it has errors, each of which has been told with its place. Raises `ErrorDeFichero`.
std::optional<Lenguaje> lenguajeDe(const std::filesystem::path& fichero, std::optional<Metodo> metodo,
                                   Salida& salida);

} // namespace norvik::orden
