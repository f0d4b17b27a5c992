// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>
#include <QTreeView>

namespace norvik::taller {

/// An outline of a tree that may be as deep as a text is long: no key opens all of its nodes at once, which
/// takes a recursion as deep.
class VistaArbol final : public QTreeView {
public:
    using QTreeView::QTreeView;

protected:
    void keyPressEvent(QKeyEvent* evento) override {
        if (evento->key() != Qt::Key_Asterisk) QTreeView::keyPressEvent(evento);
    }
};

} // namespace norvik::taller
