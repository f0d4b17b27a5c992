// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/ficheros.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <filesystem>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class pilaTokens;

/// The loading module of a language as a C++ header, in pieces of whole lines, as one
/// text, and written to `nombre`.hpp in a folder (raises `ErrorDeFichero`).
/// All raise `ArgumentoNoValido` for a name that no module can have (nombreDeModulo.hpp).
void escribeModuloCpp(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico,
                      const SumideroDeTexto& sumidero);
std::u16string textoModuloCpp(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico);
void guardaModuloCpp(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico,
                     const std::filesystem::path& carpeta);

} // namespace norvik::inline v0_2
