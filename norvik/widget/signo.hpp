// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace norvik {

/// A sign of the left border. Drawn, not stored as a picture, so that it is sharp at any scale.
class Signo final : public QWidget {
public:
    enum class Dibujo : std::uint8_t { Error, Stop, Play, FlujoActual };

    Signo(Dibujo dibujo, QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    Dibujo dibujo_;
};

} // namespace norvik
