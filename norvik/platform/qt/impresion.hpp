// SPDX-License-Identifier: MIT

#pragma once

#include <QPainter>
#include <QPrinter>
#include <QString>
#include <QTextOption>

namespace norvik {

/// Writes lines down the pages of a printer; a line wider than the page goes on in the next one, so that no
/// character passes the edge.
class Impresion {
public:
    /// Raises `ErrorNorvik` when the printer cannot be used.
    explicit Impresion(QPrinter& impresora);
    /// The same when the printer takes no more pages.
    void imprimeLinea(const QString& linea);

private:
    void pasaPagina();

    QPrinter& impresora_;
    QPainter pintor_;
    QTextOption opcion_;
    double y_ = 0;
};

} // namespace norvik
