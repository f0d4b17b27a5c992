// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"

#include <QColor>
#include <QWidget>

#include <cstdint>

class QPainter;

namespace norvik {

/// A sign of the left border. Drawn, not stored as a picture, so that it is sharp at any scale.
class Signo final : public QWidget {
public:
    enum class Dibujo : std::uint8_t { Error, Stop, Play, FlujoActual, Aviso, Nota };

    Signo(Dibujo dibujo, QWidget* padre);
    /// Draws one without a widget.
    static void pinta(QPainter& pintor, Dibujo dibujo, const QRect& sitio);
    static Dibujo dibujoDe(Gravedad gravedad);
    static QColor colorDe(Gravedad gravedad);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    Dibujo dibujo_;
};

} // namespace norvik
