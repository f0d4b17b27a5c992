// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/lugares.hpp"
#include "norvik/grammar/opcionesTabla.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// What a specification asks for in lines of exactly the form «'% palabra: valor», before its first
/// definition; to whoever does not know them they are comments. Unknown words and values ask for nothing.
struct Directivas {
    struct Conflictos {
        std::int32_t numero = 0;
        Rango lugar; ///< of the line that says so
    };

    OpcionesTabla tabla;
    bool distingueMayusculas = false;
    std::optional<Conflictos> conflictos; ///< so many are meant
};

/// The place is told in the units given.
Directivas leeDirectivas(std::u16string_view especificacion, Lugares::Unidad unidad);

/// A line with the form of one. The texts are views into the specification.
struct LineaDirectiva {
    std::u16string_view palabra;
    std::u16string_view valor;
    std::size_t inicio = 0; ///< in the specification, from 0
    std::size_t fin = 0;

    bool operator==(const LineaDirectiva&) const = default;
};

/// All of a text; those behind the header of a specification ask for nothing.
std::vector<LineaDirectiva> lineasDeDirectivas(std::u16string_view texto);
/// The blank lines and comments before the first definition.
std::u16string_view cabecera(std::u16string_view especificacion);

/// What each begins with.
inline constexpr std::u16string_view marcaDeDirectiva = u"'% ";
inline constexpr std::array<std::u16string_view, 6> palabrasDeDirectivas{
    u"metodo", u"mayusculas", u"izquierda", u"derecha", u"sinasociar", u"conflictos"};
inline constexpr std::u16string_view valorDeMayusculas = u"distingue";

/// A specification that asks for a method and is else as it was, line ends included.
std::u16string conMetodo(std::u16string_view especificacion, Metodo metodo);

/// Whether the word is known and has a use for the value.
bool vale(const LineaDirectiva& linea);
/// Says of the known words how their tokens associate.
std::optional<Asociatividad> asociatividadDe(std::u16string_view palabra);
/// The names of a value, which blanks separate: views into it.
std::vector<std::u16string_view> nombresDe(std::u16string_view valor);

} // namespace norvik::inline v0_2
