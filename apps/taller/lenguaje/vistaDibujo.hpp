// SPDX-License-Identifier: MIT

#pragma once

#include "lamina.hpp"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPointF>

#include <set>

namespace norvik::taller {

/// A drawing: the wheel with Ctrl, or `amplia` and `reduce`, change its size, dragging moves it, and a click
/// chooses a piece with a number (its `data(0)`).
class VistaDibujo : public QGraphicsView {
    Q_OBJECT

public:
    VistaDibujo(const QString& nombre, const QString& paraLectores, QWidget* padre = nullptr);

    /// Shows another one in the size and at the place of the one before; the first one as it fits, and no
    /// smaller than people read.
    void muestra(Lamina::Pinta pinta);
    void vacia();
    /// The next one is another thing: it is shown as the first one is.
    void empiezaDeNuevo();
    /// Draws it again, in the same size and place.
    void repinta();

    void amplia() { aumenta(1.25); }
    void reduce() { aumenta(0.8); }
    bool tiene(int numero) const { return numeros_.contains(numero); }
    /// Brings a piece into view, by its number.
    void acerca(int numero);
    /// All of it, but no larger than it is.
    void encaja() { encaja(0); }

signals:
    void elegido(int numero);

protected:
    void wheelEvent(QWheelEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void encaja(double minimo);
    void aumenta(double veces);
    QPointF centro() const { return mapToScene(viewport()->rect().center()); }

    QGraphicsScene escena_;
    Lamina::Pinta pinta_;
    QPointF centro_;         ///< of what was seen last
    bool porEncajar_ = true; ///< nothing was shown yet
    bool comoEncaja_ = true; ///< nobody has asked for another size
    std::set<int> numeros_;  ///< of the pieces
};

} // namespace norvik::taller
