// SPDX-License-Identifier: MIT

#pragma once

#include <QCommandLinkButton>
#include <QPaintEvent>

namespace norvik::taller {

/// A command link that shows the focus and has the letters of the rest of the program: Qt's own does neither
/// in every style.
class EnlaceOrden final : public QCommandLinkButton {
    Q_OBJECT

public:
    using QCommandLinkButton::QCommandLinkButton;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    int heightForWidth(int ancho) const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QFont letraDelTitulo() const;
    /// Where its words stand, beside the icon.
    QRect sitio(int ancho, int alto) const;
};

} // namespace norvik::taller
