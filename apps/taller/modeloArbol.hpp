// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/arbol.hpp"

#include <QAbstractItemModel>
#include <QString>

#include <vector>

namespace norvik::taller {

/// A copy of a syntax tree for a view, so that it stays as it is when the text is parsed again. A tree may be
/// as deep as its text is long: the nodes lie in one list, level by level, the children of each together.
class ModeloArbol final : public QAbstractItemModel {
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    void muestra(const Arbol& raiz);
    void vacia();
    int nodos() const { return static_cast<int>(nodos_.size()); }

    /// A leaf of the text; for a rule, the first of its leaves. 1-based, line 0 for a rule without any.
    struct Hoja {
        int linea = 0;
        int columna = 0;
        QString lexema;
    };
    Hoja hojaDe(const QModelIndex& indice) const;
    /// The nodes, level by level, that a view should show open, so many rows in all.
    QModelIndexList porAbrir(int filas) const;

    QModelIndex index(int fila, int columna, const QModelIndex& padre = {}) const override;
    QModelIndex parent(const QModelIndex& indice) const override;
    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;

private:
    struct Nodo {
        Nodo(const Arbol& nodo, int numeroDelPadre) : original(&nodo), padre(numeroDelPadre) {}

        const Arbol* original; ///< only while the tree is copied
        int padre;             ///< -1 for the root
        int primero = 0;       ///< of its children
        int hijos = 0;
        QString texto;
        int linea = 0; ///< of a leaf
        int columna = 0;
    };
    const Nodo& nodo(const QModelIndex& indice) const { return nodos_[indice.internalId()]; }
    QModelIndex indiceDe(int numero) const;
    void copiaHijos(std::size_t numero);

    std::vector<Nodo> nodos_;
};

} // namespace norvik::taller
