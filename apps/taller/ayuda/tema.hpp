// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

namespace norvik::taller {

/// A place of the manual: a heading, and words that stand below it, in bold.
struct Tema {
    QString titulo;
    QString detalle = {};
};

/// What the manual says of a widget, and of all those in it that have no place of their own.
void ponTema(QWidget& ventana, const Tema& tema);
/// That of a widget; of none, the manual's beginning.
Tema temaDe(const QWidget* ventana);

} // namespace norvik::taller
