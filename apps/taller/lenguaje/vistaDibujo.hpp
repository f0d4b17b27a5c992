// SPDX-License-Identifier: MIT

#pragma once

#include "lamina.hpp"

#include <QGraphicsScene>
#include <QGraphicsView>

#include <set>

namespace norvik::taller {

/// A drawing: the wheel with Ctrl, or `amplia` and `reduce`, change its size, dragging moves it, and a click
/// chooses a piece with a number (its `data(0)`).
class VistaDibujo : public QGraphicsView {
    Q_OBJECT

public:
    VistaDibujo(const QString& nombre, const QString& paraLectores, QWidget* padre = nullptr);

    /// Shows another one as large as it is, or as it fits.
    void muestra(Lamina::Pinta pinta);
    void vacia();
    /// Draws it again, in the same size and place.
    void repinta();

    void amplia() { aumenta(1.25); }
    void reduce() { aumenta(0.8); }
    bool tiene(int numero) const { return numeros_.contains(numero); }
    /// Brings a piece into view, by its number.
    void acerca(int numero);
    /// All of it, but no larger than it is.
    void encaja();

signals:
    void elegido(int numero);

protected:
    void wheelEvent(QWheelEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void aumenta(double veces);

    QGraphicsScene escena_;
    Lamina::Pinta pinta_;
    std::set<int> numeros_; ///< of the pieces
};

} // namespace norvik::taller
