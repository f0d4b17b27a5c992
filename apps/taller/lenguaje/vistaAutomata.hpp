// SPDX-License-Identifier: MIT

#pragma once

#include "dibujoAutomata.hpp"

#include <QGraphicsScene>
#include <QGraphicsView>

namespace norvik::taller {

/// A drawn automaton: the wheel with Ctrl, or `amplia` and `reduce`, change its size, dragging moves it, and
/// a click chooses a state.
class VistaAutomata final : public QGraphicsView {
    Q_OBJECT

public:
    explicit VistaAutomata(QWidget* padre = nullptr);

    void muestra(const DibujoAutomata& dibujo, int elegido);
    void vacia();
    const DibujoAutomata& dibujo() const { return dibujo_; }
    bool dibuja(int estado) const { return dibujo_.estado(estado) != nullptr; }
    /// Marks a state and brings it into view.
    void elige(int estado);

    void amplia() { aumenta(1.25); }
    void reduce() { aumenta(0.8); }
    /// All of it, but no larger than it is.
    void encaja();

signals:
    void elegido(int estado);

protected:
    void wheelEvent(QWheelEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void aumenta(double veces);
    void repinta();

    QGraphicsScene escena_;
    DibujoAutomata dibujo_;
    int elegido_ = -1;
};

} // namespace norvik::taller
