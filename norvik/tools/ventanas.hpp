// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/qt/ayudaLlana.hpp"
#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/nombra.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"

#include <QScreen>
#include <QString>
#include <QWidget>

#include <algorithm>
#include <utility>

// What the windows have in common.
namespace norvik {

/// Gives a window a size, or as much of it as its screen has for it and its frame.
inline void mide(QWidget& ventana, const QSize& deseada) {
    ventana.resize(deseada.boundedTo(ventana.screen()->availableSize() * 0.9));
}

/// Puts a window in the middle of another one, or as near as the screen lets it.
inline void centra(QWidget& ventana, const QWidget& sobre) {
    const QRect pantalla = sobre.screen()->availableGeometry();
    const QPoint ultimo = pantalla.bottomRight() - ventana.rect().bottomRight();
    const QPoint sitio = sobre.window()->frameGeometry().center() - ventana.rect().center();
    ventana.move(std::max(std::min(sitio.x(), ultimo.x()), pantalla.left()),
                 std::max(std::min(sitio.y(), ultimo.y()), pantalla.top()));
}

/// Shows a modal window, made for it, until it is closed. Its parent may die meanwhile, and take it along.
template <typename Ventana, typename... Argumentos>
void muestraModal(SistemaQt& sistema, Argumentos&&... argumentos) {
    const VentanaDeAmbito<Ventana> ventana(std::forward<Argumentos>(argumentos)...);
    sistema.muestraModal(*ventana);
}

/// Carries out a command of a window; a failure is told in a plain message box, a cancellation is known.
template <typename Orden>
void ejecuta(Sistema& sistema, const Orden& orden) {
    const std::u16string fallo = falloDe([&] {
        try {
            orden();
        } catch (const OperacionCancelada&) {
            return;
        }
    });
    if (!fallo.empty()) sinFallos([&] { sistema.muestraMensaje({fallo, {}}); });
}

} // namespace norvik
