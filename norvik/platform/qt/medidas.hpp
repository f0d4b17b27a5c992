// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <cmath>
#include <cstdint>

namespace norvik {

/// Width and height of a pixel in twips (1/1440 inch), by the resolution that the system's font scaling sets.
struct TwipsPorPixel {
    double x = 15;
    double y = 15;
};

inline TwipsPorPixel twipsPorPixel(const QWidget& ventana) {
    constexpr double twipsPorPulgada = 1440;
    return {twipsPorPulgada / ventana.logicalDpiX(), twipsPorPulgada / ventana.logicalDpiY()};
}

inline int aPixeles(std::int32_t twips, double twipsPorPixel) {
    return static_cast<int>(std::lround(twips / twipsPorPixel));
}

inline std::int32_t aTwips(double pixeles, double twipsPorPixel) {
    return static_cast<std::int32_t>(std::lround(pixeles * twipsPorPixel));
}

} // namespace norvik
