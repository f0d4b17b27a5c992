// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QWidget;

namespace norvik {

/// Makes an element one whose words a screen reader says when they come, wherever the focus is. To be called
/// before it has a name.
void hazAviso(QWidget& elemento);
/// Its words of now, and that they have come.
void avisaALectores(QWidget& elemento, const QString& palabras);
/// The same once, of an element of something that is not seen yet, and is shown.
void apareceALectores(QWidget& elemento, const QString& palabras, QWidget& marco);

} // namespace norvik
