// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace norvik::orden {

/// Raises `ErrorDeFichero` unless a folder to write into exists; standard output always does.
void compruebaCarpeta(const std::filesystem::path& carpeta);

} // namespace norvik::orden
