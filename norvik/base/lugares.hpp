// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/rango.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// Where the characters of a text stand, told in the units of whoever gave it. The text itself, in UTF-16,
/// is kept by its owner, and must stay as long as this. Asking changes nothing: several threads may.
class Lugares {
public:
    enum class Unidad : std::uint8_t { Utf16, Utf8 };

    Lugares(std::u16string_view texto, Unidad unidad);

    /// Units before a character, which is named by its 0-based index in UTF-16.
    std::int32_t desplazamiento(std::size_t indice) const;
    Punto punto(std::size_t indice) const;
    /// From a character up to the one before `fin`.
    Rango rango(std::size_t inicio, std::size_t fin) const { return {punto(inicio), punto(fin)}; }

private:
    std::u16string_view texto_;
    std::vector<std::int32_t> lineas_; ///< index of each line's first character
    /// Units before each stretch of characters; none when a unit is a character.
    std::vector<std::int32_t> tramos_;
};

} // namespace norvik::inline v0_2
