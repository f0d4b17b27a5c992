// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <optional>

namespace norvik::inline v0_2 {

/// Dónde está un elemento dentro del rectángulo del control. Aquí todas las longitudes son twips.
struct Rectangulo {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t ancho = 0;
    std::int32_t alto = 0;

    bool operator==(const Rectangulo&) const = default;
};

/// Una línea horizontal o vertical de un píxel, sin su último punto.
struct Linea {
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    std::int32_t x2 = 0;
    std::int32_t y2 = 0;

    bool operator==(const Linea&) const = default;
};

/// De qué depende la disposición.
struct Superficie {
    std::int32_t ancho = 0;
    std::int32_t alto = 0;
    std::int32_t pixelX = 15; ///< ancho y alto de un píxel
    std::int32_t pixelY = 15;
    bool borde3D = true;
    bool leftBorderVisible = true;
    std::int16_t margenIzquierdo = 150;
    std::int32_t bordeAdicional = 0; ///< anchura del borde izquierdo además de la de sus señales
};

/// Los sitios de los elementos, por sus nombres.
struct Disposicion {
    Linea separador;
    Rectangulo bordeNegro;
    Rectangulo debugBox;
    Rectangulo texto;
    std::optional<Rectangulo> controlSpace; ///< desde lo alto del hueco; nada cuando no se ve
    Linea bordeClaro1;
    Linea bordeClaro2;
    Linea bordeOscuro1;
    Linea bordeOscuro2;
    Rectangulo bordeClaroBase;
};

/// Nada con un control demasiado pequeño, que se queda con la disposición que tenga.
NORVIK_API std::optional<Disposicion> disponeElementos(const Superficie& superficie);
/// El borde izquierdo de la caja de texto.
NORVIK_API std::int32_t izquierdaDelTexto(const Superficie& superficie);
/// El borde izquierdo que saca la caja de texto de la vista.
NORVIK_API std::int32_t izquierdaFueraDeLaVista(const Superficie& superficie);
/// El sitio de una señal en el borde izquierdo.
struct LugarDeSigno {
    std::int32_t x = 0;
    std::int32_t y = 0;
};
/// El de una señal junto a una línea, que cuenta desde 1.
NORVIK_API LugarDeSigno lugarDeSigno(std::int32_t linea, std::int32_t primeraLineaVisible,
                                     std::int32_t altoDeLinea);

} // namespace norvik::inline v0_2
