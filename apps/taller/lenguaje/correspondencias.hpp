// SPDX-License-Identifier: MIT

#pragma once

#include "eleccion.hpp"
#include "estudio.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

// What a choice is when it is seen as something else: a node is a range of the text, a rule, a symbol.
// Nothing where it is nothing of that kind.
namespace norvik::taller {

std::optional<Rango> lugarEnEspecificacion(const Estudio& estudio, const Eleccion& eleccion);
std::optional<Rango> lugarEnTexto(const Estudio& estudio, const Eleccion& eleccion);
std::optional<std::int16_t> reglaDe(const Estudio& estudio, const Eleccion& eleccion);
std::optional<std::u16string> simboloDe(const Estudio& estudio, const Eleccion& eleccion);
std::optional<std::int16_t> estadoDe(const Eleccion& eleccion);
/// The cell of the table that it is.
std::optional<DeCelda> celdaDe(const Eleccion& eleccion);
/// How many nodes of the tree a rule has made, and the first of them.
struct NodosDeRegla {
    std::size_t cuantos = 0;
    std::optional<std::size_t> primero;
};
NodosDeRegla nodosDe(const Estudio& estudio, std::int16_t regla);
/// The column of the table that a choice is about: of a cell its own, of an item that of the symbol behind
/// its point, else that of its symbol.
std::optional<std::int16_t> columnaDe(const Estudio& estudio, const Eleccion& eleccion);
/// Of a range of the text, the smallest node that has all of it; of a place between two tokens, the second.
std::optional<std::size_t> nodoDe(const Estudio& estudio, const Eleccion& eleccion);

} // namespace norvik::taller
