// SPDX-License-Identifier: MIT

#pragma once

#include "dibujoGrafo.hpp"

#include <QFont>
#include <QGraphicsScene>
#include <QList>
#include <QPalette>
#include <QStringList>

#include <set>
#include <utility>

namespace norvik::taller {

/// A state as it is drawn: its number, and its items.
struct EstadoDibujado {
    int numero = 0;
    QString titulo;
    QStringList lineas;
    bool conflicto = false; ///< has a frame of two lines besides its title's words
};

/// An automaton, or a part of it, where Graphviz has put it.
struct DibujoAutomata {
    QFont letra;
    QList<EstadoDibujado> estados;
    Grafo grafo;
    GrafoColocado sitio;

    const EstadoDibujado* estado(int numero) const;
    QRectF caja(int numero) const;
};

/// The states as boxes, as large as their words need, and the arrows between them. When there are very many,
/// the symbols stand in the boxes that they lead to.
DibujoAutomata preparaDibujo(QList<EstadoDibujado> estados, QList<Grafo::Flecha> flechas, const QFont& letra);

/// What stands out in it: a state, a way of arrows, each from one state to another, and the states that have
/// to do with the chosen rule, which have a frame of dashes.
struct RealceAutomata {
    int estado = -1;
    QList<std::pair<int, int>> camino;
    std::set<int> conRegla{};

    bool operator==(const RealceAutomata&) const = default;
};

/// Draws it in the colours of a palette into an empty scene. The boxes know their state by `data(0)`.
void pinta(const DibujoAutomata& dibujo, const QPalette& colores, const RealceAutomata& realce,
           QGraphicsScene& escena);

} // namespace norvik::taller
