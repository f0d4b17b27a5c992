// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace norvik {

/// A label that shows as much of a path as it has room for, the ends first.
class EtiquetaDeRuta final : public QLabel {
public:
    explicit EtiquetaDeRuta(QWidget* padre) : QLabel(padre) { setTextFormat(Qt::PlainText); }
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* evento) override;
};

} // namespace norvik
