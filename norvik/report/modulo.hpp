// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/ficheros.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <filesystem>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class pilaTokens;

/// The loading module of a language in Visual Basic, in pieces of whole lines, as one
/// text, and written to `nombre`.bas in a folder (raises `ErrorDeFichero`).
/// All raise `ArgumentoNoValido` for a name that no module can have (nombreDeModulo.hpp).
void escribeModulo(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico,
                   const SumideroDeTexto& sumidero);
std::u16string textoModulo(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico);
void guardaModulo(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico,
                  const std::filesystem::path& carpeta);

} // namespace norvik::inline v0_2
