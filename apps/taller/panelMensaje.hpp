// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace norvik::taller {

/// A strip under the form with the error of the last parse; hidden while there is none.
class PanelMensaje final : public QFrame {
    Q_OBJECT

public:
    explicit PanelMensaje(QWidget* padre = nullptr);

    void muestra(const QString& error);
    QString texto() const { return isHidden() ? QString() : mensaje_.text(); }

signals:
    /// To the place of the error.
    void pideIr();

private:
    QHBoxLayout fila_;
    QLabel signo_, mensaje_;
    QToolButton ir_, cerrar_;
};

} // namespace norvik::taller
