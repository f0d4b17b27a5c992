// SPDX-License-Identifier: MIT

#include "modeloArbol.hpp"

#include "norvik/platform/qt/conversiones.hpp"

#include <QFont>

namespace norvik::taller {

namespace {

/// A node made by a rule, even by one with an empty body; the others are tokens.
bool esInterior(const Arbol& nodo) {
    return nodo.GetNumRegla() > 0;
}

QString textoDe(const Arbol& nodo) {
    if (!esInterior(nodo)) return aQString(nodo.GetLexema());
    return QStringLiteral("%1. %2 → %3")
        .arg(nodo.GetNumRegla())
        .arg(aQString(nodo.GetNomRegla()), aQString(nodo.GetRegla()));
}

} // namespace

void ModeloArbol::muestra(const Arbol& raiz) {
    beginResetModel();
    nodos_.assign(1, {raiz, -1});
    for (std::size_t i = 0; i < nodos_.size(); ++i) copiaHijos(i);
    endResetModel();
}

void ModeloArbol::vacia() {
    beginResetModel();
    nodos_.clear();
    endResetModel();
}

void ModeloArbol::copiaHijos(std::size_t numero) {
    const Arbol& original = *nodos_[numero].original;
    const auto hijos = original.hijos();
    Nodo& nodo = nodos_[numero];
    nodo.original = nullptr;
    nodo.primero = nodos();
    nodo.hijos = static_cast<int>(hijos.size());
    nodo.texto = textoDe(original);
    if (!esInterior(original)) {
        nodo.linea = original.GetLinea();
        nodo.columna = original.GetColumna();
    }
    for (const Arbol* const hijo : hijos) nodos_.emplace_back(*hijo, static_cast<int>(numero));
}

ModeloArbol::Hoja ModeloArbol::hojaDe(const QModelIndex& indice) const {
    std::vector<std::size_t> pendientes{indice.internalId()};
    while (!pendientes.empty()) {
        const Nodo& n = nodos_[pendientes.back()];
        pendientes.pop_back();
        if (n.linea > 0) return {n.linea, n.columna, n.texto};
        for (int i = n.hijos; i > 0; --i) pendientes.push_back(static_cast<std::size_t>(n.primero + i - 1));
    }
    return {};
}

QModelIndexList ModeloArbol::porAbrir(int filas) const {
    QModelIndexList indices;
    for (int i = 0; i < nodos() && nodos_[static_cast<std::size_t>(i)].primero < filas; ++i)
        if (nodos_[static_cast<std::size_t>(i)].hijos > 0) indices.append(indiceDe(i));
    return indices;
}

// ---- for views

QModelIndex ModeloArbol::indiceDe(int numero) const {
    const int padre = nodos_[static_cast<std::size_t>(numero)].padre;
    const int fila = padre < 0 ? 0 : numero - nodos_[static_cast<std::size_t>(padre)].primero;
    return createIndex(fila, 0, static_cast<quintptr>(numero));
}

QModelIndex ModeloArbol::index(int fila, int columna, const QModelIndex& padre) const {
    if (!hasIndex(fila, columna, padre)) return {};
    const int numero = padre.isValid() ? nodo(padre).primero + fila : 0;
    return createIndex(fila, columna, static_cast<quintptr>(numero));
}

QModelIndex ModeloArbol::parent(const QModelIndex& indice) const {
    if (!indice.isValid() || nodo(indice).padre < 0) return {};
    return indiceDe(nodo(indice).padre);
}

int ModeloArbol::rowCount(const QModelIndex& padre) const {
    if (!padre.isValid()) return nodos_.empty() ? 0 : 1;
    return nodo(padre).hijos;
}

int ModeloArbol::columnCount(const QModelIndex& /*padre*/) const {
    return 1;
}

QVariant ModeloArbol::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid()) return {};
    const Nodo& n = nodo(indice);
    const bool hoja = n.linea > 0;
    if (papel == Qt::DisplayRole) return n.texto;
    if (papel == Qt::ToolTipRole && hoja)
        return QStringLiteral("Línea %1, Columna %2").arg(n.linea).arg(n.columna);
    if (papel != Qt::FontRole || !hoja) return {};
    QFont letra;
    letra.setBold(true);
    return letra;
}

} // namespace norvik::taller
