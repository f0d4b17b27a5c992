// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include "norvik/parser/pelicula.hpp"

#include <QString>

#include <cstddef>
#include <cstdint>

// A moment of a parse in words.
namespace norvik::taller {

/// A piece of text in one line, cut where it is long.
QString enUnaLinea(std::u16string_view texto, std::size_t maximo);

/// Where the parser stands, what it does next, and where that leads; of an error, what is wrong.
QString palabrasDePaso(const Estudio& estudio, const Pelicula& pelicula, std::size_t momento);
/// Of a cell in which other actions had a place too: why it has this one, and what each of them would have
/// done; empty when there is none.
QString palabrasDeConflicto(const Estudio& estudio, const Pelicula& pelicula, std::size_t momento);

} // namespace norvik::taller
