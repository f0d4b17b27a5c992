// SPDX-License-Identifier: MIT

#pragma once

#include "modeloArbol.hpp"

#include <QDockWidget>
#include <QTreeView>

namespace norvik::taller {

/// The syntax tree of the last parse.
class PanelArbol final : public QDockWidget {
    Q_OBJECT

public:
    explicit PanelArbol(QWidget* padre = nullptr);

    void muestra(const Arbol& raiz);
    void vacia() { modelo_.vacia(); }
    const ModeloArbol& modelo() const { return modelo_; }

signals:
    /// A node was chosen; its first leaf, or itself.
    void elegida(const norvik::taller::ModeloArbol::Hoja& hoja);

private:
    /// Opening all nodes at once takes a recursion as deep as the tree.
    class Vista final : public QTreeView {
    protected:
        void keyPressEvent(QKeyEvent* evento) override;
    };

    ModeloArbol modelo_;
    Vista vista_;
};

} // namespace norvik::taller
