// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/pelicula.hpp"

#include <QTreeWidget>

#include <cstddef>
#include <set>

namespace norvik::taller {

/// The stack of a parse at a moment, its bottom above, as the text reads: a row an entry, each with the
/// partial tree that has grown up to it. Trees stand open as far as there is room for them; what the person
/// closes stays so at other moments. A deep stack is shown from its top down, and more of it when a person
/// chooses the row that says how much is below.
class VistaPila final : public QTreeWidget {
    Q_OBJECT

public:
    explicit VistaPila(QWidget* padre = nullptr);

    /// The film is looked at until it is another one's turn, or nobody's.
    void muestra(const Pelicula& pelicula, std::size_t momento);
    void vacia();

signals:
    /// The person went to a row: an entry of the stack, or a node of its tree.
    void elegida(norvik::Pelicula::Nodo nodo);

protected:
    /// Opening all nodes at once takes a recursion as deep as the tree.
    void keyPressEvent(QKeyEvent* evento) override;

private:
    static constexpr std::size_t maximoEntradas = 200;
    static constexpr int maximoFilas = 300;

    QTreeWidgetItem& hazFila(Pelicula::Nodo nodo) const;
    void hazHijos(QTreeWidgetItem& fila);
    void abre(QList<QTreeWidgetItem*> filas);
    static Pelicula::Nodo nodoDe(const QTreeWidgetItem& fila);
    void alAbrir(QTreeWidgetItem* fila);
    void alCerrar(QTreeWidgetItem* fila);
    void muestraMas();

    const Pelicula* pelicula_ = nullptr;
    std::size_t momento_ = 0;
    std::size_t entradas_ = maximoEntradas; ///< from the top, as many as a person has asked for
    std::set<Pelicula::Nodo> cerrados_;
};

} // namespace norvik::taller
