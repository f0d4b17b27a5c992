// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QPalette>
#include <QWidget>

namespace norvik::taller {

/// How the windows look on the wall of a classroom: large letters, black on white, and texts half as large
/// again with the numbers of their lines. All is as before when it is over.
class Presentacion {
public:
    bool puesta() const { return puesta_; }
    void pon(bool puesta);
    /// For a window that came later.
    void aplica(QWidget& ventana) const;

private:
    bool puesta_ = false;
    QFont letra_; ///< before
    QPalette paleta_;
};

} // namespace norvik::taller
