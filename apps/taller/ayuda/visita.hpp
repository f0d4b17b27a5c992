// SPDX-License-Identifier: MIT

#pragma once

#include "lenguaje/ventanaLenguaje.hpp"

#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::taller {

/// The guided tour of the language window: a strip above the editors that says, a step at a time, what can be
/// seen and done, and brings to the front what it speaks of.
class Visita final : public QDockWidget {
    Q_OBJECT

public:
    /// Of a window that outlives it, or takes it along.
    explicit Visita(VentanaLenguaje& ventana);

    /// From the beginning, with a language of its own. Nothing when a person does not want to lose what is
    /// there.
    void empieza();
    int paso() const { return paso_; }
    QPushButton& siguiente() { return siguiente_; }

private:
    void compone();
    void ponPaso(int paso);

    VentanaLenguaje& ventana_;
    int paso_ = 0;
    QWidget todo_;
    QVBoxLayout columna_;
    QHBoxLayout fila_;
    QLabel titulo_, texto_;
    QPushButton anterior_, siguiente_, acaba_;
};

} // namespace norvik::taller
