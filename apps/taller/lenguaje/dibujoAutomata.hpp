// SPDX-License-Identifier: MIT

#pragma once

#include "dibujoGrafo.hpp"

#include <QByteArray>
#include <QFont>
#include <QGraphicsScene>
#include <QImage>
#include <QList>
#include <QPalette>
#include <QStringList>

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

/// The states as boxes, as large as their words need, and the arrows between them.
DibujoAutomata preparaDibujo(QList<EstadoDibujado> estados, QList<Grafo::Flecha> flechas, const QFont& letra);

/// Draws it in the colours of a palette. The boxes know their state by `data(0)`.
void pinta(const DibujoAutomata& dibujo, const QPalette& colores, int elegido, QGraphicsScene& escena);

/// The same in black on white, as a picture of dots and in SVG.
QImage enImagen(const DibujoAutomata& dibujo);
QByteArray enSvg(const DibujoAutomata& dibujo);

/// Writes it to a file by what its ending says: SVG, PDF, else PNG. Raises `ErrorDeFichero`.
void guardaDibujo(const DibujoAutomata& dibujo, const QString& fichero);

} // namespace norvik::taller
