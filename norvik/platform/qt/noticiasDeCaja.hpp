// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/cajaTexto.hpp"

#include <QObject>

namespace norvik {

/// What a text box in a window tells those who show something beside or over its text. Its own events are for
/// the control, and come in between.
class NoticiasDeCaja final : public QObject {
    Q_OBJECT

signals:
    /// The text is another, before anyone else hears of it. The editor may not show it yet.
    void sustituido(const norvik::CambioDeTexto& cambio);
    /// What was done is over, and the editor shows text, colours and selection as they are.
    void alDia();
};

} // namespace norvik
