// SPDX-License-Identifier: MIT

#pragma once

#include <QCommandLinkButton>
#include <QPaintEvent>
#include <QPainter>

namespace norvik::taller {

/// A command link that shows the focus, which Qt's own does not in every style.
class EnlaceOrden final : public QCommandLinkButton {
    Q_OBJECT

public:
    using QCommandLinkButton::QCommandLinkButton;

protected:
    void paintEvent(QPaintEvent* evento) override {
        QCommandLinkButton::paintEvent(evento);
        if (!hasFocus()) return;
        constexpr qreal grueso = 2;
        constexpr qreal redondeo = 3;
        QPainter pintor(this);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setPen(QPen(palette().color(QPalette::Highlight), grueso));
        pintor.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), redondeo, redondeo);
    }
};

} // namespace norvik::taller
