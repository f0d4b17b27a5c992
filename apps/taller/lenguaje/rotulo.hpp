// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace norvik::taller {

/// Plain words of a panel, in as many lines as they need. A label of Qt's lays its words out in several
/// widths to say which one it would like, at every change, a tenth of a step of the film: this one takes what
/// it is given. Where it once had more lines it keeps them, up to a few: what stands below would be moved and
/// drawn again by words that come and go.
class Rotulo final : public QLabel {
public:
    explicit Rotulo(QWidget* padre = nullptr);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;
    int heightForWidth(int ancho) const override;

protected:
    void changeEvent(QEvent* evento) override;

private:
    static constexpr int sinAncho = -1;

    mutable int ancho_ = sinAncho; ///< of which the rest is known
    mutable QString medido_;
    mutable int alto_ = 0;    ///< of those words
    mutable int reserva_ = 0; ///< what it had of words before
};

} // namespace norvik::taller
