// SPDX-License-Identifier: MIT

#pragma once

#include "eleccion.hpp"
#include "estudio.hpp"

#include "norvik/report/grafoEstados.hpp"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

// A state of an automaton in words, of a language that has one.
namespace norvik::taller {

/// The items that it began with: those read past their beginning, or the rules of the start symbol.
QStringList nucleoDe(const GramaticaLR& gramatica, std::int16_t estado);
/// «Estado 7», and whether it accepts or has a conflict.
QString tituloDeEstado(const LenguajeEstudiado& lenguaje, std::int16_t estado);
/// «La entrada más corta: si a»; empty where no text leads, or only a very long one.
QString entradaDeEstado(const GrafoEstados& grafo, std::int16_t estado);
/// A rule that stands out among the items, or one of its items alone.
struct ReglaResaltada {
    std::int16_t regla = 0; ///< from 1; 0 none
    std::optional<std::int16_t> punto{};

    bool operator==(const ReglaResaltada&) const = default;
};
/// The items of a state, each a link that `eleccionDeEnlace` reads; those that stand out are bold.
QStringList itemsEnHtml(const GramaticaLR& gramatica, std::int16_t estado, const ReglaResaltada& resaltada);
/// The states whose items have a rule.
std::vector<std::int16_t> estadosConRegla(const GramaticaLR& gramatica, std::int16_t regla);
/// Items, ways on, reductions, conflicts, and how a text gets there; states and items are links that
/// `eleccionDeEnlace` reads. Before them, where the rule that stands out is.
QString estadoEnHtml(const LenguajeEstudiado& lenguaje, const GrafoEstados& grafo, std::int16_t estado,
                     const ReglaResaltada& resaltada = {});
/// What a link of these pages stands for: a state or an item.
std::optional<Eleccion> eleccionDeEnlace(const QString& enlace);

} // namespace norvik::taller
