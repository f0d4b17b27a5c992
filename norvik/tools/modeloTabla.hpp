// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <QAbstractTableModel>

#include <vector>

namespace norvik {

/// How a conflict is told from the rest: what a view asks for, if the cell or its header has to do with one.
QVariant realceDeConflicto(int papel);

/// A grammar's SLR table for a view: a row a state, a column a symbol. Cells are made when they are asked
/// for; grammar and lexer must outlive it unchanged.
class ModeloTabla final : public QAbstractTableModel {
    Q_OBJECT

public:
    ModeloTabla(const gramatica& gramatica, const pilaTokens& lexico);

    int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : filas_; }
    int columnCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : columnas_; }
    QVariant data(const QModelIndex& celda, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    /// The longest text of a column, its header's included.
    QString masLargo(int columna) const;

private:
    QString texto(int fila, int columna) const;
    QVariant datoDe(const QModelIndex& celda, int papel) const;
    QVariant encabezado(int seccion, Qt::Orientation orientacion, int papel) const;
    QString ayudaDeCelda(int fila, int columna) const;
    QString ayudaDeColumna(int columna) const;

    const gramatica& gramatica_;
    const pilaTokens& lexico_;
    int filas_;
    int columnas_;
    std::vector<bool> filasEnConflicto_;
    std::vector<bool> columnasEnConflicto_;
};

} // namespace norvik
