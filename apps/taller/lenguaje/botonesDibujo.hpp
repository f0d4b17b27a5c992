// SPDX-License-Identifier: MIT

#pragma once

#include "../dialogos.hpp"
#include "lamina.hpp"
#include "panel.hpp"
#include "vistaDibujo.hpp"

#include <QAction>
#include <QBoxLayout>
#include <QWidget>

#include <functional>

namespace norvik::taller {

/// What a panel offers for its picture: other sizes of the view, if it has one, and the picture as an image
/// for other programs, or in a file. Its keys work wherever in the panel the focus is.
class BotonesDibujo final : public QWidget {
    Q_OBJECT

public:
    struct Dibujo {
        std::function<Lamina()> lamina; ///< it may raise why there is none
        QString fichero;                ///< proposed name, without an ending
        VistaDibujo* vista = nullptr;
        std::function<QString()> texto{}; ///< what programs without pictures take, if there is one
        bool estrecho = false;            ///< the panel stands beside the texts, which want the room
    };
    /// Panel, dialogs and view outlive it. What fails is told by the panel.
    BotonesDibujo(Panel& panel, Dialogos& dialogos, Dibujo dibujo);

    /// There is a picture.
    void activa(bool hay);

private:
    void pon(QBoxLayout& fila, QAction& accion, const QString& texto, const QKeySequence& tecla,
             const std::function<void()>& orden);
    void haz(const std::function<void()>& orden);
    void copia();
    void guarda();

    Panel& panel_;
    Dialogos& dialogos_;
    const Dibujo dibujo_;
    QBoxLayout filas_;
    QHBoxLayout medidas_, salidas_;
    QAction ampliar_, reducir_, encajar_, copiar_, guardar_;
};

} // namespace norvik::taller
