// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/spec/lenguaje.hpp"

#include <QListWidget>
#include <QObject>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>

class QKeyEvent;

namespace norvik {

class CajaTextoQt;

/// The list of what can follow at the caret, by the table: Control and the space bar show it, what is typed
/// meanwhile narrows it, Return or the tab key take what is chosen, Escape leaves it. The focus stays in the
/// text. Kinds of tokens that are written in many ways are named, and cannot be taken.
class Completado final : public QObject {
public:
    /// What can follow at a position of a text.
    using Propone = std::function<Continuaciones(std::u16string_view texto, std::size_t posicion)>;

    /// Puts a text in the place of some characters, as one step of undo.
    using Escribe =
        std::function<void(std::int32_t inicio, std::int32_t longitud, std::u16string_view texto)>;

    Completado(CajaTextoQt& caja, Propone propone, Escribe escribe);

    /// From here on it asks somebody else.
    void preguntaA(Propone propone) { propone_ = std::move(propone); }

    void permite(bool permitido);
    /// To be called when the editor is up to date.
    void sigue();

protected:
    bool eventFilter(QObject* vista, QEvent* evento) override;

private:
    bool pulsa(const QKeyEvent& tecla);
    void muestra();
    void llena(const Continuaciones& continuaciones);
    void coloca(const QString& escrito, int filas);
    void mueve(int pasos);
    void toma();

    CajaTextoQt& caja_;
    Propone propone_;
    Escribe escribe_;
    QListWidget lista_;
    std::int32_t inicio_ = 0; ///< of what is completed
    bool permitido_ = false;
};

} // namespace norvik
