// SPDX-License-Identifier: MIT

#include "dibujoTabla.hpp"

#include "lamina.hpp"

#include <QFontMetricsF>
#include <QGraphicsItem>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace norvik::taller {

namespace {

QString titulo(const QAbstractTableModel& tabla, int seccion, Qt::Orientation orientacion) {
    return tabla.headerData(seccion, orientacion, Qt::DisplayRole).toString();
}

QString celda(const QAbstractTableModel& tabla, int fila, int columna) {
    return tabla.index(fila, columna).data().toString();
}

class PintorTabla {
public:
    PintorTabla(const QAbstractTableModel& tabla, const QFont& letra, const QPalette& colores,
                QGraphicsScene& escena)
        : tabla_(tabla), letra_(letra), negrita_(letra), color_(colores.color(QPalette::Text)),
          escena_(escena), alto_(QFontMetricsF(letra).height() * 1.4) {
        negrita_.setBold(true);
        mide();
    }

    void pinta() {
        raya();
        for (int c = 0; c < tabla_.columnCount(); ++c)
            escribe(titulo(tabla_, c, Qt::Horizontal), -1, c, negrita_);
        for (int f = 0; f < tabla_.rowCount(); ++f) {
            escribe(titulo(tabla_, f, Qt::Vertical), f, -1, negrita_);
            for (int c = 0; c < tabla_.columnCount(); ++c)
                if (const QString texto = celda(tabla_, f, c); !texto.isEmpty()) escribe(texto, f, c, letra_);
        }
    }

private:
    double anchoDe(const QString& texto) const {
        const QFontMetricsF medidas(negrita_);
        return medidas.horizontalAdvance(texto) + medidas.averageCharWidth() * 2;
    }

    /// Edges of the columns, the one of the rows' headings among them.
    void mide() {
        double ancho = 0;
        for (int f = 0; f < tabla_.rowCount(); ++f)
            ancho = std::max(ancho, anchoDe(titulo(tabla_, f, Qt::Vertical)));
        bordes_ = {0, ancho};
        for (int c = 0; c < tabla_.columnCount(); ++c) {
            double suyo = anchoDe(titulo(tabla_, c, Qt::Horizontal));
            for (int f = 0; f < tabla_.rowCount(); ++f) suyo = std::max(suyo, anchoDe(celda(tabla_, f, c)));
            bordes_.push_back(bordes_.back() + suyo);
        }
    }

    void raya() {
        const QPen pluma(color_, grosorDeLinea(letra_));
        for (int f = -1; f <= tabla_.rowCount(); ++f)
            escena_.addLine(0, alto_ * (f + 1), bordes_.back(), alto_ * (f + 1), pluma);
        for (const double x : bordes_) escena_.addLine(x, 0, x, alto_ * (tabla_.rowCount() + 1), pluma);
    }

    /// Row and column −1 are the headings.
    void escribe(const QString& texto, int fila, int columna, const QFont& letra) {
        QGraphicsSimpleTextItem& pieza = *escena_.addSimpleText(texto, letra);
        pieza.setBrush(color_);
        const auto c = static_cast<std::size_t>(columna) + 1;
        const QPointF centro((bordes_[c] + bordes_[c + 1]) / 2, alto_ * (fila + 1.5));
        pieza.setPos(centro - pieza.boundingRect().center());
    }

    const QAbstractTableModel& tabla_;
    const QFont letra_;
    QFont negrita_;
    const QColor color_;
    QGraphicsScene& escena_;
    const double alto_; // of a row
    std::vector<double> bordes_;
};

} // namespace

void pintaTabla(const QAbstractTableModel& tabla, const QFont& letra, const QPalette& colores,
                QGraphicsScene& escena) {
    PintorTabla(tabla, letra, colores, escena).pinta();
}

QString tablaEnTexto(const QAbstractTableModel& tabla) {
    QStringList lineas;
    for (int f = -1; f < tabla.rowCount(); ++f) {
        QStringList celdas(f < 0 ? QString() : titulo(tabla, f, Qt::Vertical));
        for (int c = 0; c < tabla.columnCount(); ++c)
            celdas += f < 0 ? titulo(tabla, c, Qt::Horizontal) : celda(tabla, f, c);
        lineas += celdas.join(u'\t');
    }
    return lineas.join(u'\n') + u'\n';
}

} // namespace norvik::taller
