// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/checks/arbolEjemplo.hpp"

#include <QFont>
#include <QGraphicsScene>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

namespace norvik::taller {

/// A node of a tree as it is drawn.
struct NodoDibujado {
    enum class Clase { Variable, Token, Texto };

    QString rotulo;
    std::size_t hijos = 0; ///< how many it has
    Clase clase = Clase::Variable;
    int numero = -1; ///< what a click on it tells; −1 nothing
};

/// The nodes of a tree, children before their parent, each subtree whole.
using ArbolDibujado = std::vector<NodoDibujado>;

ArbolDibujado arbolDe(const ArbolEjemplo& ejemplo);

struct AspectoArbol {
    QFont letra;
    QPalette colores;
    int elegido = -1; ///< number of the node that stands out
    QPointF origen;   ///< upper left corner
    /// Nodes that have a frame of dashes, by their numbers; none by default.
    std::function<bool(int numero)> marcado{};
};
/// Draws it into a scene; its pieces know their node by `data(0)`. The place that it takes.
QRectF pinta(const ArbolDibujado& arbol, const AspectoArbol& aspecto, QGraphicsScene& escena);

} // namespace norvik::taller
