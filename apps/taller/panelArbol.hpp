// SPDX-License-Identifier: MIT

#pragma once

#include "modeloArbol.hpp"
#include "vistaArbol.hpp"

#include <QDockWidget>

namespace norvik::taller {

/// The syntax tree of the last parse.
class PanelArbol final : public QDockWidget {
    Q_OBJECT

public:
    explicit PanelArbol(QWidget* padre = nullptr);

    void muestra(ArbolAnalisis arbol);
    void vacia() { modelo_.vacia(); }
    const ModeloArbol& modelo() const { return modelo_; }

signals:
    /// A node was chosen; its first leaf, or itself.
    void elegida(const norvik::taller::ModeloArbol::Hoja& hoja);

private:
    ModeloArbol modelo_;
    VistaArbol vista_;
};

} // namespace norvik::taller
