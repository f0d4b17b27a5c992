// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace norvik::taller {

/// Lies over a control while its form is designed: takes what the user does, shows that it is selected.
class VeloDisenio final : public QWidget {
    Q_OBJECT

public:
    explicit VeloDisenio(QWidget* padre);

    void ponSeleccionado(bool seleccionado);

signals:
    void seleccionado();
    /// A double click, or the return key.
    void pidePropiedades();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;

private:
    bool seleccionado_ = false;
};

} // namespace norvik::taller
