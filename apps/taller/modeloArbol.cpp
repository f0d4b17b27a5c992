// SPDX-License-Identifier: MIT

#include "modeloArbol.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"

#include <QFont>

#include <utility>
#include <vector>

namespace norvik::taller {

namespace {

QString textoDe(Nodo nodo) {
    if (nodo.esToken()) return aQString(nodo.lexema());
    return QStringLiteral("%1. %2 → %3")
        .arg(nodo.regla())
        .arg(aQString(nodo.nombre()), aQString(nodo.cuerpo()));
}

QVariant letraDeToken() {
    QFont letra;
    letra.setBold(true);
    return letra;
}

} // namespace

void ModeloArbol::muestra(ArbolAnalisis arbol) {
    beginResetModel();
    arbol_ = std::move(arbol);
    endResetModel();
}

/// Nodes stand before their children: of a rule that has tokens the first one behind it is its own.
ModeloArbol::Hoja ModeloArbol::hojaDe(const QModelIndex& indice) const {
    if (nodo(indice).texto().empty()) return {};
    std::size_t i = nodo(indice).indice();
    while (!arbol_[i].esToken()) ++i;
    const Punto lugar = arbol_[i].rango().inicio;
    return {lugar.linea, lugar.columna, aQString(arbol_[i].texto())};
}

QModelIndexList ModeloArbol::porAbrir(std::size_t filas) const {
    QModelIndexList indices;
    if (arbol_.esVacio()) return indices;
    std::vector<Nodo> porNiveles{arbol_.raiz()};
    for (std::size_t i = 0; i < porNiveles.size() && porNiveles.size() < filas; ++i) {
        const Hijos hijos = porNiveles[i].hijos();
        if (!hijos.empty()) indices.append(indiceDe(porNiveles[i]));
        porNiveles.insert(porNiveles.end(), hijos.begin(), hijos.end());
    }
    return indices;
}

// ---- for views

QModelIndex ModeloArbol::indiceDe(Nodo nodo) const {
    int fila = 0;
    if (const auto padre = nodo.padre())
        for (auto hijo = padre->hijos().begin(); *hijo != nodo; ++hijo) ++fila;
    return createIndex(fila, 0, static_cast<quintptr>(nodo.indice()));
}

QModelIndex ModeloArbol::index(int fila, int columna, const QModelIndex& padre) const {
    if (!hasIndex(fila, columna, padre)) return {};
    const Nodo suyo = padre.isValid() ? nodo(padre)[static_cast<std::size_t>(fila)] : arbol_.raiz();
    return createIndex(fila, columna, static_cast<quintptr>(suyo.indice()));
}

QModelIndex ModeloArbol::parent(const QModelIndex& indice) const {
    const auto padre = indice.isValid() ? nodo(indice).padre() : std::nullopt;
    return padre ? indiceDe(*padre) : QModelIndex();
}

int ModeloArbol::rowCount(const QModelIndex& padre) const {
    if (!padre.isValid()) return arbol_.esVacio() ? 0 : 1;
    return static_cast<int>(nodo(padre).numHijos());
}

int ModeloArbol::columnCount(const QModelIndex& /*padre*/) const {
    return 1;
}

QVariant ModeloArbol::data(const QModelIndex& indice, int papel) const {
    QVariant dato;
    sinFallos([&] {
        if (!indice.isValid()) return;
        const Nodo suyo = nodo(indice);
        if (papel == Qt::DisplayRole) dato = textoDe(suyo);
        if (!suyo.esToken()) return;
        const Punto lugar = suyo.rango().inicio;
        if (papel == Qt::ToolTipRole)
            dato = QStringLiteral("Línea %1, Columna %2").arg(lugar.linea).arg(lugar.columna);
        if (papel == Qt::FontRole) dato = letraDeToken();
    });
    return dato;
}

} // namespace norvik::taller
