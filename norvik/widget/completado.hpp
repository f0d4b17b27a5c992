// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/spec/lenguaje.hpp"

#include <QListWidget>
#include <QObject>

#include <cstdint>
#include <functional>

class QKeyEvent;

namespace norvik {

class CajaTextoQt;

/// The list of what can follow at the caret, by the table: Control and the space bar show it, what is typed
/// meanwhile narrows it, Return or the tab key take what is chosen, Escape leaves it. The focus stays in the
/// text. Kinds of tokens that are written in many ways are named, and cannot be taken.
class Completado final : public QObject {
public:
    Completado(CajaTextoQt& caja, std::function<Lenguaje()> lenguaje);

    void permite(bool permitido);
    /// To be called when the editor is up to date.
    void sigue();

protected:
    bool eventFilter(QObject* vista, QEvent* evento) override;

private:
    bool pulsa(const QKeyEvent& tecla);
    void muestra();
    void llena(const Continuaciones& continuaciones);
    void coloca();
    void mueve(int pasos);
    void toma();

    CajaTextoQt& caja_;
    const std::function<Lenguaje()> lenguaje_;
    QListWidget lista_;
    std::int32_t inicio_ = 0; ///< of what is completed
    bool permitido_ = false;
};

} // namespace norvik
