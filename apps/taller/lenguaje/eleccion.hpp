// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/rango.hpp"
#include "norvik/grammar/estadoAutomata.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

// What a person has chosen in a panel or an editor of the language window. The panels show the same thing
// seen in several ways; each takes of a choice what it can show.
namespace norvik::taller {

/// Which of the two texts.
enum class Lado : std::uint8_t { Especificacion, Texto };

struct EnEspecificacion {
    Rango rango; ///< of the specification's text
};
struct EnTexto {
    Rango rango; ///< of the text
};
struct DeSimbolo {
    std::u16string nombre; ///< as the grammar has it
};
struct DeRegla {
    std::int16_t regla = 0; ///< from 1
};
struct DeItem {
    std::int16_t estado = 0; ///< from 0
    Item item;
};
struct DeEstado {
    std::int16_t estado = 0; ///< from 0
};
struct DeCelda {
    std::int16_t estado = 0; ///< from 0
    std::int16_t codigo = 0; ///< of the column, from 0
};
struct DeNodo {
    std::size_t nodo = 0; ///< its place in the study's tree
};
/// What a parse does next, seen as its place in the text, its state and its cell.
struct DePaso {
    Rango rango;                        ///< of the text
    std::int16_t estado = 0;            ///< from 0
    std::optional<std::int16_t> codigo; ///< of the column, from 0; none where no token can be read
};

using Eleccion =
    std::variant<EnEspecificacion, EnTexto, DeSimbolo, DeRegla, DeItem, DeEstado, DeCelda, DeNodo, DePaso>;

} // namespace norvik::taller
