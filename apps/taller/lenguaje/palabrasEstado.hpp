// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include "norvik/report/grafoEstados.hpp"

#include <QString>
#include <QStringList>

#include <cstdint>

// A state of an automaton in words, of a language that has one.
namespace norvik::taller {

/// The items that it began with: those read past their beginning, or the rules of the start symbol.
QStringList nucleoDe(const GramaticaLR& gramatica, std::int16_t estado);
/// «Estado 7», and whether it accepts or has a conflict.
QString tituloDeEstado(const LenguajeEstudiado& lenguaje, std::int16_t estado);
/// «La entrada más corta: si a»; empty where no text leads, or only a very long one.
QString entradaDeEstado(const GrafoEstados& grafo, std::int16_t estado);
/// Items, ways on (links by the state's number), reductions, conflicts, and how a text gets there.
QString estadoEnHtml(const LenguajeEstudiado& lenguaje, const GrafoEstados& grafo, std::int16_t estado);

} // namespace norvik::taller
