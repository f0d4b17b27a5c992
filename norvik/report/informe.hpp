// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/ficheros.hpp"
#include "norvik/grammar/gramaticaLR.hpp"

#include <cstdint>
#include <filesystem>
#include <string>

namespace norvik::inline v0_2 {

/// The report on a grammar, in pieces of whole lines, as one text, and written to "informeGramatica.txt" in a
/// folder (raises `ErrorDeFichero`).
void escribeInforme(const GramaticaLR& g, const SumideroDeTexto& sumidero);
std::u16string textoInforme(const GramaticaLR& g);
void guardaInforme(const GramaticaLR& g, const std::filesystem::path& carpeta);

/// What a report window shows: rules and sets, the automaton, a cell of the table (1-based; raises
/// `SubindiceFueraDeIntervalo`).
std::u16string textoInformeGeneral(const GramaticaLR& g);
std::u16string textoAutomata(const GramaticaLR& g);
std::u16string celdaTabla(const TablaLR& tabla, std::int16_t fila, std::int16_t columna);

/// The conflict message.
std::u16string textoProblemas(const GramaticaLR& g);

} // namespace norvik::inline v0_2
