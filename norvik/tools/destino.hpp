// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>
#include <functional>

namespace norvik {

/// What is to become of work that is about to be lost.
enum class Destino : std::uint8_t { Guardar, Descartar, Cancelar };

/// Saves with `accion` if that is the answer. False when the work stays as it is: the user gives up, or it
/// could not be saved.
template <typename Accion>
bool cumple(Destino destino, Accion accion) {
    switch (destino) {
    case Destino::Guardar:
        return accion();
    case Destino::Descartar:
        return true;
    case Destino::Cancelar:
        return false;
    }
    return false;
}

/// Who asks, with the captions of the answers that save and that do not.
using PreguntaDestino =
    std::function<Destino(const QString& texto, const QString& guardar, const QString& descartar)>;

/// Asks in a modal box, above the modal window on top, else above `ventana`.
Destino preguntaDestino(const QString& texto, const QString& guardar, const QString& descartar,
                        QWidget* ventana);

} // namespace norvik
