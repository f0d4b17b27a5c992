// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/base/rango.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// A name of a specification, at one of the places where it is written.
struct NombreEscrito {
    enum class Papel : std::uint8_t {
        EnDirectiva,
        Auxiliar, ///< where a regular definition is defined
        Token,    ///< where a token is
        EnPatron, ///< a reference
        Cabeza,   ///< of a rule
        EnCuerpo, ///< of a rule; also one that stands where nobody expects it
    };

    std::u16string nombre;
    Rango lugar; ///< of the name alone, in UTF-16 units
    Papel papel = Papel::EnCuerpo;
};

/// All of them, in the order of the text, which is read and not parsed: one that is being written has them,
/// too. Raises `Desbordamiento` with a text of 2^31 - 1 units or more.
std::vector<NombreEscrito> nombresEscritos(std::u16string_view especificacion);

/// The one that has a place or ends there; null where there is none. `desplazamiento` counts units.
const NombreEscrito* nombreEn(std::span<const NombreEscrito> nombres, std::int32_t desplazamiento);
/// Where a name comes from: its definition, else its first rule; null when it has neither.
const NombreEscrito* origenDe(std::span<const NombreEscrito> nombres, std::u16string_view nombre);

/// Why what is called `nombre` cannot be called `nuevo`; empty when it can.
std::u16string reparosA(std::span<const NombreEscrito> nombres, std::u16string_view nombre,
                        std::u16string_view nuevo);
/// Calls it so wherever it is written.
Arreglo cambiaNombre(std::span<const NombreEscrito> nombres, std::u16string_view nombre,
                     std::u16string_view nuevo);

} // namespace norvik::inline v0_2
