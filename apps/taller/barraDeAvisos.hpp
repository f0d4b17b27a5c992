// SPDX-License-Identifier: MIT

#pragma once

#include <QStatusBar>
#include <QString>

namespace norvik::taller {

/// The status bar of a window, which tells things where they are in nobody's way; readers of screens say
/// them.
class BarraDeAvisos final : public QStatusBar {
    Q_OBJECT

public:
    explicit BarraDeAvisos(QWidget* padre = nullptr);

    /// For so many milliseconds; none is until there is something else to tell.
    void avisa(const QString& texto, int milisegundos = 0);
};

} // namespace norvik::taller
