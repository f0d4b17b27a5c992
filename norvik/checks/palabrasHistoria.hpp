// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/historiaConflicto.hpp"

#include <cstddef>
#include <string>
#include <string_view>

// What is said of a conflict, sentence by sentence: text and page put it together each in its way.
namespace norvik::inline v0_2::palabras {

/// Where it is, what the table does there and what else it could do.
std::u16string planteamiento(const HistoriaConflicto& historia);
/// What the example shows.
std::u16string explicacion(const HistoriaConflicto& historia);
/// What is over each of both trees.
std::u16string rotulo(const HistoriaConflicto& historia, std::size_t cual);
/// What the table does with the sentence in tokens; empty when there is nothing to say.
std::u16string prueba(const HistoriaConflicto& historia);
/// What usually cures it.
std::u16string remedio(const HistoriaConflicto& historia);
/// "ambigua", "sino-colgante": the names by which programs know them.
std::u16string_view nombreDe(HistoriaConflicto::Clase clase);
std::u16string_view nombreDe(HistoriaConflicto::Cura cura);
/// A tree for who hears it: «E, que es (E mas E)».
std::u16string arbol(const ArbolEjemplo& arbol);
/// "a b • c"
std::u16string frase(const EjemploConflicto& ejemplo);

} // namespace norvik::inline v0_2::palabras
