// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

namespace norvik {

/// The progress notice. It comes up without blocking or taking the focus, and stays above all other windows
/// until it is closed or goes. Who shows it refuses what must not be done meanwhile.
class Procesando final : public QFrame {
    Q_OBJECT

public:
    /// Shows itself in the middle of a window.
    explicit Procesando(QWidget* sobre);
};

} // namespace norvik
