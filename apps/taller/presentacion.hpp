// SPDX-License-Identifier: MIT

#pragma once

#include <QDockWidget>
#include <QFont>
#include <QPalette>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace norvik {
class ControlNorvik;
}

namespace norvik::taller {

/// How the windows look on the wall of a classroom: large letters, black on white, and texts half as large
/// again. All is as before when it is over.
class Presentacion {
public:
    bool puesta() const { return puesta_; }
    void pon(bool puesta);
    /// For a window that came later.
    void aplica(QWidget& ventana);

private:
    struct Antes {
        QPointer<ControlNorvik> norvik;
        int aumento;
    };
    struct Ancho {
        QPointer<QDockWidget> panel;
        int antes;
    };

    void anotaAnchos();
    void reponAnchos();

    bool puesta_ = false;
    QFont letra_; ///< before
    QPalette paleta_;
    std::vector<Antes> antes_;
    std::vector<Ancho> anchos_;
};

/// The title of a dock keeps the letters that the program had when the dock was made. With this it has those
/// of the rest, also after they have changed.
void ponLetraDelTitulo(QDockWidget& panel);

} // namespace norvik::taller
