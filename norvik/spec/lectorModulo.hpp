#pragma once

#include "norvik/base/ficheros.hpp"

#include <concepts>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace norvik {

class CargadorLenguaje;

/// Why a loading module could not be replayed.
struct ErrorModulo {
    std::int32_t linea = 0; ///< 1-based line of the module
    std::u16string texto;   ///< what is wrong with it, one line

    /// "Línea 12 del módulo: se esperaba «End Sub»"
    std::u16string mensaje() const;
};

/// A file is taken for a loading module when its name ends like one.
bool esModulo(const std::filesystem::path& fichero);

/// Replays a loading module call by call, in the order in which a host program would execute it. Nothing is
/// called unless the whole text is a module: exactly what the writer writes, save indentation, empty lines
/// and the kind of line ends. A call that raises a failure ends the replay with the calls before it done. The
/// text is the file's, its line ends untouched: a pattern may contain some, and `leeTexto` would change them.
std::optional<ErrorModulo> CargaModulo(std::u16string_view texto, CargadorLenguaje& control);
/// The same of a text that comes in pieces. A failure of their origin (`ErrorDeFichero`) passes through.
std::optional<ErrorModulo> CargaModulo(const OrigenDeTexto& origen, CargadorLenguaje& control);
/// The same of a file; raises `ErrorDeFichero`. A template, for what is a path and not for what makes one.
std::optional<ErrorModulo> CargaModulo(const std::same_as<std::filesystem::path> auto& fichero,
                                       CargadorLenguaje& control) {
    TextoPorTrozos texto(fichero);
    return CargaModulo(OrigenDeTexto([&] { return texto.siguiente(); }), control);
}

} // namespace norvik
