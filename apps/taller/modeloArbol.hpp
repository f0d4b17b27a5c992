// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/arbolAnalisis.hpp"

#include <QAbstractItemModel>
#include <QString>

namespace norvik::taller {

/// A syntax tree for a view, a row a node, which is known by its place in the tree. Its own: it stays as it
/// is when the text is parsed again, and is as large as it is, not as a view would have it.
class ModeloArbol final : public QAbstractItemModel {
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    void muestra(ArbolAnalisis arbol);
    void vacia() { muestra({}); }
    int nodos() const { return static_cast<int>(arbol_.numNodos()); }

    /// A token of the text; for a rule, the first of its tokens. 1-based, line 0 for a rule without any.
    struct Hoja {
        int linea = 0;
        int columna = 0;
        QString texto;
    };
    Hoja hojaDe(const QModelIndex& indice) const;
    /// The nodes, level by level, that a view should show open, so many rows in all.
    QModelIndexList porAbrir(std::size_t filas) const;

    QModelIndex index(int fila, int columna, const QModelIndex& padre = {}) const override;
    QModelIndex parent(const QModelIndex& indice) const override;
    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;

private:
    Nodo nodo(const QModelIndex& indice) const { return arbol_[indice.internalId()]; }
    QModelIndex indiceDe(Nodo nodo) const;

    ArbolAnalisis arbol_;
};

} // namespace norvik::taller
