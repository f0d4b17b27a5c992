// SPDX-License-Identifier: MIT

#pragma once

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

    bool puesta_ = false;
    QFont letra_; ///< before
    QFont letraDePaneles_;
    QPalette paleta_;
    std::vector<Antes> antes_;
};

} // namespace norvik::taller
