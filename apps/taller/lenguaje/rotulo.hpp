// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace norvik::taller {

/// Plain words of a panel, in as many lines as they need. A label of Qt's lays its words out in several
/// widths to say which one it would like, at every change, a tenth of a step of the film: this one takes what
/// it is given.
class Rotulo final : public QLabel {
public:
    explicit Rotulo(QWidget* padre = nullptr);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;
};

} // namespace norvik::taller
