// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/ficheros.hpp"

#include <concepts>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class CargadorLenguaje;

/// Por qué no se pudo cargar un módulo.
struct NORVIK_API ErrorModulo {
    std::int32_t linea = 0; ///< del módulo, desde 1
    std::u16string texto;   ///< qué está mal en ella, en una línea

    /// «Línea 12 del módulo: se esperaba «End Sub»».
    std::u16string mensaje() const;
};

/// Si un fichero se toma por un módulo de carga: su nombre acaba en «.bas», con mayúsculas o sin ellas.
NORVIK_API bool esModulo(const std::filesystem::path& fichero);

/// Carga un módulo en un control, con sus llamadas y en su orden: se añade a lo que el control tenga, y antes
/// de un segundo lenguaje se llama a `Norvik::OlvidaLenguaje`. Da nada si fue bien. No llama a nada si el
/// texto no es un módulo entero (lo que escribe `GuardaModuloGramatica`, salvo sangrías, líneas vacías y la
/// clase de sus finales de línea): da entonces la primera línea que no lo es. También da un `ErrorModulo`,
/// con su línea, si una llamada lanza, con las anteriores hechas. El texto es el del fichero con sus finales
/// de línea, que puede haber en un patrón y que `leeTexto` cambiaría.
NORVIK_API std::optional<ErrorModulo> CargaModulo(std::u16string_view texto, CargadorLenguaje& control);
/// Lo mismo de un texto que llega a trozos. Lo que lance su origen (`ErrorDeFichero`) sale de aquí.
NORVIK_API std::optional<ErrorModulo> CargaModulo(const OrigenDeTexto& origen, CargadorLenguaje& control);
/// Lo mismo de un fichero, que se da como `std::filesystem::path`: una cadena sería el texto de un módulo.
/// Lanza `ErrorDeFichero`.
std::optional<ErrorModulo> CargaModulo(const std::same_as<std::filesystem::path> auto& fichero,
                                       CargadorLenguaje& control) {
    TextoPorTrozos texto(fichero);
    return CargaModulo(OrigenDeTexto([&] { return texto.siguiente(); }), control);
}

} // namespace norvik::inline v0_2
