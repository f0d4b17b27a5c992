// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <filesystem>
#include <string_view>

namespace norvik::inline v0_2 {

class Norvik;

/// A control takes a language in the place of its own, of a specification or of a file with one or with a
/// loading module. It is compiled apart first, which tells what is wrong; with errors the control stays as it
/// is. Raise what loading raises, `TextoDemasiadoLargo` for a specification that no control can load, and
/// `ErrorDeFichero`. The control may be deleted while its table is generated.
NORVIK_API Compilacion cargaLenguaje(Norvik& control, std::u16string_view especificacion);
NORVIK_API Compilacion cargaLenguajeDe(Norvik& control, const std::filesystem::path& fichero);

} // namespace norvik::inline v0_2
