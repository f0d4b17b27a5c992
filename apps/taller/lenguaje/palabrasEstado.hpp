// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/report/grafoEstados.hpp"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

// A state of an automaton in words.
namespace norvik::taller {

/// What is known of an automaton besides the grammar itself.
struct AutomataEstudiado {
    GrafoEstados grafo;
    std::vector<Conflicto> conflictos; ///< of its table
};

/// The items that it began with: those read past their beginning, or the rules of the start symbol.
QStringList nucleoDe(const GramaticaLR& gramatica, std::int16_t estado);
/// «Estado 7», and whether it accepts or has a conflict.
QString tituloDeEstado(const GramaticaLR& gramatica, const AutomataEstudiado& automata, std::int16_t estado);
/// Items, ways on (links by the state's number), reductions, conflicts, and how a text gets there.
QString estadoEnHtml(const GramaticaLR& gramatica, const AutomataEstudiado& automata, std::int16_t estado);

} // namespace norvik::taller
