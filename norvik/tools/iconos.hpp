// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

#include <cstdint>

namespace norvik {

enum class Dibujo : std::uint8_t {
    Nuevo,
    Abrir,
    Guardar,
    Imprimir,
    Deshacer,
    Rehacer,
    Buscar,
    Ejecutar,
    Analizar,
    Informe,
    Disenio,
    Propiedades
};

/// A picture of a command, drawn in the palette's colours, so that it is sharp at any scale and seen on any
/// background.
QIcon icono(Dibujo dibujo);

} // namespace norvik
