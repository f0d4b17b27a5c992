#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace norvik::orden {

/// A place in a text; line and column are 1-based.
struct Lugar {
    std::size_t linea = 1;
    std::size_t columna = 1;

    bool operator==(const Lugar&) const = default;
};

/// The place that an error message of the parse names. The message is the only witness of it once the text of
/// a language specification is gone from the control.
std::optional<Lugar> lugarDelError(std::u16string_view mensaje);

/// The line of a place, or as much of it as fits a terminal, and a caret under the place.
std::u16string muestraLugar(std::u16string_view texto, Lugar lugar);

} // namespace norvik::orden
