// SPDX-License-Identifier: MIT

#pragma once

#include "eleccion.hpp"

#include "norvik/grammar/gramaticaLR.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// What the panels say of a grammar and its table, in one place, so that they say it alike.
namespace norvik::taller {

/// In the place of a table, where there is none.
constexpr std::u16string_view sinTabla = u"El lenguaje no tiene gramática, o no compila: no hay tabla.";
/// «3. E → E mas T»
std::u16string palabrasDeRegla(const GramaticaLR& g, std::int16_t regla);
/// «E → E • mas T»
std::u16string palabrasDeItem(const GramaticaLR& g, Item item);
/// A token between quotes; the end of the text by its name.
std::u16string entreComillas(std::u16string_view simbolo);
/// What an entry of the table does: «desplazar «mas» y pasar al estado 7».
std::u16string palabrasDeAccion(const GramaticaLR& g, std::int16_t codigo, std::int16_t entrada);
/// What a cell does, and what was kept out of it; `conflictos` are those of the table.
std::u16string palabrasDeCelda(const GramaticaLR& g, std::span<const Conflicto> conflictos,
                               const DeCelda& celda);

} // namespace norvik::taller
