// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>

namespace norvik {

// Where the child elements of the control stand inside its rectangle. All lengths in twips.

struct Rectangulo {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t ancho = 0;
    std::int32_t alto = 0;

    bool operator==(const Rectangulo&) const = default;
};

/// A horizontal or vertical line of one pixel, its last point not included.
struct Linea {
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    std::int32_t x2 = 0;
    std::int32_t y2 = 0;

    bool operator==(const Linea&) const = default;
};

/// What the layout depends on.
struct Superficie {
    std::int32_t ancho = 0;
    std::int32_t alto = 0;
    std::int32_t pixelX = 15; ///< width and height of a pixel
    std::int32_t pixelY = 15;
    bool borde3D = true;
    bool leftBorderVisible = true;
    std::int16_t margenIzquierdo = 150;
};

/// The places of the elements, by their names.
struct Disposicion {
    Linea separador;
    Rectangulo bordeNegro;
    Rectangulo debugBox;
    Rectangulo texto;
    std::optional<Rectangulo> controlSpace; ///< from the top of the gap down; nothing when it is hidden
    Linea bordeClaro1;
    Linea bordeClaro2;
    Linea bordeOscuro1;
    Linea bordeOscuro2;
    Rectangulo bordeClaroBase;
};

/// Nothing for a control that is too small to be laid out: it keeps the layout that it has.
std::optional<Disposicion> disponeElementos(const Superficie& superficie);
/// The text box's left edge.
std::int32_t izquierdaDelTexto(const Superficie& superficie);
/// The left edge that moves the text box out of view.
std::int32_t izquierdaFueraDeLaVista(const Superficie& superficie);
/// Place of a sign beside a line (1-based) on the left border.
struct LugarDeSigno {
    std::int32_t x = 0;
    std::int32_t y = 0;
};
LugarDeSigno lugarDeSigno(std::int32_t linea, std::int32_t primeraLineaVisible, std::int32_t altoDeLinea);

} // namespace norvik
