// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFont>
#include <QGraphicsScene>
#include <QImage>
#include <QPalette>
#include <QString>

#include <functional>

namespace norvik::taller {

/// A picture for people outside: what draws it, and its name. On paper it is black on white.
struct Lamina {
    /// Draws all of it into an empty scene, of lines, boxes, polygons and words (`QGraphicsSimpleTextItem`).
    using Pinta = std::function<void(const QPalette& colores, QGraphicsScene& escena)>;

    QString titulo; ///< «Autómata»
    Pinta pinta;
};

/// How a name stands for a kind of picture: SVG, PDF, else PNG.
extern const QString filtroLaminas;

/// Twice as large as it is, or as large as a picture can be. Raises `std::bad_alloc` without memory for it.
QImage enImagen(const Lamina& lamina);
QByteArray enSvg(const Lamina& lamina);
QByteArray enPdf(const Lamina& lamina);
/// Writes it to a file by what its ending says. Raises `ErrorDeFichero`.
void guardaLamina(const Lamina& lamina, const QString& fichero);
/// How thick lines are beside letters: on the wall of a classroom both are larger.
double grosorDeLinea(const QFont& letra);
/// The scene has what is drawn in it, and some air around.
void ajustaEscena(QGraphicsScene& escena);

} // namespace norvik::taller
