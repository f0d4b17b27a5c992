// SPDX-License-Identifier: MIT

#include "norvik/tools/modeloTabla.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/tools/ventanas.hpp"

#include <QBrush>
#include <QFont>

namespace norvik {

namespace {

/// The grammar counts rows and columns from 1.
std::int16_t numero(int indice) {
    return static_cast<std::int16_t>(indice + 1);
}

} // namespace

QVariant realceDeConflicto(int papel) {
    const QColor rojizo(225, 70, 30, 110); // lets the background through, light or dark
    if (papel == Qt::BackgroundRole) return QBrush(rojizo);
    if (papel != Qt::FontRole) return {};
    QFont negrita;
    negrita.setBold(true);
    return negrita;
}

ModeloTabla::ModeloTabla(const gramatica& gramatica, const pilaTokens& lexico)
    : gramatica_(gramatica), lexico_(lexico), filas_(gramatica.filasVigentes()),
      columnas_(gramatica.columnasVigentes()), filasEnConflicto_(static_cast<std::size_t>(filas_)),
      columnasEnConflicto_(static_cast<std::size_t>(columnas_)) {
    for (int f = 0; f < filas_; ++f) {
        for (int c = 0; c < columnas_; ++c) {
            if (!gramatica.enConflicto(numero(f), numero(c))) continue;
            filasEnConflicto_[static_cast<std::size_t>(f)] = true;
            columnasEnConflicto_[static_cast<std::size_t>(c)] = true;
        }
    }
}

QString ModeloTabla::texto(int fila, int columna) const {
    return aQString(gramatica_.celdaTabla(numero(fila), numero(columna)));
}

QVariant ModeloTabla::data(const QModelIndex& celda, int papel) const {
    QVariant dato;
    sinFallos([&] { dato = datoDe(celda, papel); });
    return dato;
}

QVariant ModeloTabla::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    QVariant dato;
    sinFallos([&] { dato = encabezado(seccion, orientacion, papel); });
    return dato;
}

QVariant ModeloTabla::datoDe(const QModelIndex& celda, int papel) const {
    if (papel == Qt::DisplayRole) return texto(celda.row(), celda.column());
    if (papel == Qt::TextAlignmentRole) return Qt::AlignCenter;
    if (papel == Qt::ToolTipRole) return ayudaDeCelda(celda.row(), celda.column());
    return gramatica_.enConflicto(numero(celda.row()), numero(celda.column())) ? realceDeConflicto(papel)
                                                                               : QVariant();
}

QVariant ModeloTabla::encabezado(int seccion, Qt::Orientation orientacion, int papel) const {
    const bool deColumna = orientacion == Qt::Horizontal;
    if (papel == Qt::DisplayRole)
        return deColumna ? aQString(gramatica_.encabezadoColumna(numero(seccion))) : QString::number(seccion);
    if (papel == Qt::ToolTipRole && deColumna) return ayudaDeColumna(seccion);
    const auto& enConflicto = deColumna ? columnasEnConflicto_ : filasEnConflicto_;
    return enConflicto[static_cast<std::size_t>(seccion)] ? realceDeConflicto(papel) : QVariant();
}

QString ModeloTabla::ayudaDeCelda(int fila, int columna) const {
    const QString contenido = texto(fila, columna);
    if (contenido.isEmpty()) return {};
    const bool enConflicto = gramatica_.enConflicto(numero(fila), numero(columna));
    return ayudaLlana(QStringLiteral("%1 en el estado %2, símbolo %3")
                          .arg(enConflicto ? QStringLiteral("Conflicto ") + contenido : contenido)
                          .arg(fila)
                          .arg(aQString(gramatica_.encabezadoColumna(numero(columna)))));
}

/// How the token of a column may be written.
QString ModeloTabla::ayudaDeColumna(int columna) const {
    const std::u16string_view simbolo = gramatica_.encabezadoColumna(numero(columna));
    return ayudaLlana(aQString(lexico_.toStringLexemasPorToken(simbolo)));
}

QString ModeloTabla::masLargo(int columna) const {
    std::u16string mas(gramatica_.encabezadoColumna(numero(columna)));
    for (int f = 0; f < filas_; ++f) {
        std::u16string otro = gramatica_.celdaTabla(numero(f), numero(columna));
        if (otro.size() > mas.size()) mas = std::move(otro);
    }
    return aQString(mas);
}

} // namespace norvik
