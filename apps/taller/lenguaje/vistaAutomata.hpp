// SPDX-License-Identifier: MIT

#pragma once

#include "dibujoAutomata.hpp"
#include "vistaDibujo.hpp"

namespace norvik::taller {

/// A drawn automaton with the chosen state and the way to it from state 0.
class VistaAutomata final : public VistaDibujo {
    Q_OBJECT

public:
    explicit VistaAutomata(QWidget* padre = nullptr);

    void muestra(const DibujoAutomata& dibujo, const RealceAutomata& realce);
    void vacia();
    const DibujoAutomata& dibujo() const { return dibujo_; }
    bool dibuja(int estado) const { return dibujo_.estado(estado) != nullptr; }
    const RealceAutomata& realce() const { return realce_; }
    /// Marks a state and the way to it, and brings the state into view.
    void elige(const RealceAutomata& realce);

private:
    DibujoAutomata dibujo_;
    RealceAutomata realce_;
};

} // namespace norvik::taller
