#pragma once

#include <QFrame>

namespace norvik {

/// The progress notice. It comes up without blocking and stays above all other windows until it is closed or
/// goes; meanwhile what the user does reaches none of them, so that long work can let events run.
class Procesando final : public QFrame {
    Q_OBJECT

public:
    /// Shows itself in the middle of a window.
    explicit Procesando(QWidget* sobre);
};

} // namespace norvik
