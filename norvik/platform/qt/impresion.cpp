// SPDX-License-Identifier: MIT

#include "norvik/platform/qt/impresion.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/platform/qt/conversiones.hpp"

#include <QTextLayout>

namespace norvik {

Impresion::Impresion(QPrinter& impresora) : impresora_(impresora) {
    if (!pintor_.begin(&impresora_))
        throw ErrorNorvik(u"No se puede imprimir: la impresora no está disponible");
    pintor_.setFont(aQFont({}));
    constexpr int espaciosPorTabulacion = 8;
    opcion_.setWrapMode(QTextOption::WrapAnywhere);
    opcion_.setTabStopDistance(pintor_.fontMetrics().horizontalAdvance(u' ') * espaciosPorTabulacion);
    opcion_.setFlags(QTextOption::IncludeTrailingSpaces);
}

void Impresion::imprimeLinea(const QString& linea) {
    QTextLayout trazado(linea, pintor_.font(), &impresora_);
    trazado.setTextOption(opcion_);
    trazado.beginLayout();
    for (QTextLine renglon = trazado.createLine(); renglon.isValid(); renglon = trazado.createLine()) {
        renglon.setLineWidth(pintor_.window().width());
        if (y_ + renglon.height() > pintor_.window().height()) pasaPagina();
        renglon.draw(&pintor_, {0, y_});
        y_ += renglon.height();
    }
    trazado.endLayout();
}

void Impresion::pasaPagina() {
    if (!impresora_.newPage()) throw ErrorNorvik(u"No se puede imprimir: la impresora no acepta más páginas");
    y_ = 0;
}

} // namespace norvik
