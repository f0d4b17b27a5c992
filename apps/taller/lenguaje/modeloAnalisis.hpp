// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include <QAbstractItemModel>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace norvik::taller {

/// How runs of rules with one symbol are shown.
enum class Cadenas : std::uint8_t { Enteras, EnUnaFila };

/// The tree of a study for a view: a row a node, with its symbol and its text. It has no copy of the tree: a
/// row is known by its node, with `Cadenas::EnUnaFila` the first of the nodes that it stands for.
class ModeloAnalisis final : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Columna { Simbolo, Texto, numeroDeColumnas };

    void muestra(std::shared_ptr<const Estudio> estudio, Cadenas cadenas);

    /// The row that stands for a node; none when the tree has no such node.
    QModelIndex indiceDe(std::size_t nodo) const;
    /// The last node that a row stands for.
    std::size_t nodoDe(const QModelIndex& indice) const { return fondo(cima(indice)).indice(); }
    /// Rows with a node that a rule has made stand out once they are painted again; 0 none.
    void resalta(std::int16_t regla) { resaltada_ = regla; }
    /// A node stands out by its rule, or by that of another one in its row.
    bool resaltado(std::size_t nodo) const;
    /// The first node behind another one, and from the root on behind the last, whose name or, of a token,
    /// text has these words, as people write them; the other one comes last.
    std::optional<std::size_t> busca(const QString& palabras, std::size_t desde) const;
    /// Which child of its parent each row is, from the root down to this one.
    static std::vector<int> lugarDe(const QModelIndex& indice);
    /// The row at such a place; none when there is none.
    QModelIndex filaEn(const std::vector<int>& lugar) const;
    /// The symbols from the root down to a row, and the rule of its last one.
    QString camino(const QModelIndex& indice) const;

    QModelIndex index(int fila, int columna, const QModelIndex& padre = {}) const override;
    QModelIndex parent(const QModelIndex& indice) const override;
    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& /*padre*/ = {}) const override { return numeroDeColumnas; }
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

private:
    const ArbolAnalisis& arbol() const { return estudio_->arbol(); }
    bool esVacio() const { return !estudio_ || arbol().esVacio(); }
    Nodo cima(const QModelIndex& indice) const { return arbol()[indice.internalId()]; }
    Nodo cimaDe(Nodo nodo) const;
    Nodo fondo(Nodo nodo) const;
    bool enFila(Nodo nodo) const;
    QModelIndex indice(Nodo cima, int columna) const;
    QStringList simbolos(Nodo cima) const;
    QString enUnaLinea(Nodo cima) const;
    QString ayuda(Nodo nodo) const;
    QVariant letraDe(Nodo nodo, int columna) const;

    std::shared_ptr<const Estudio> estudio_;
    std::int16_t resaltada_ = 0;
    Cadenas cadenas_ = Cadenas::EnUnaFila;
};

} // namespace norvik::taller
