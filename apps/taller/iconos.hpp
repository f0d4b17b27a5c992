#pragma once

#include <QIcon>

namespace norvik::taller {

enum class Dibujo : std::uint8_t {
    Nuevo,
    Abrir,
    Guardar,
    Imprimir,
    Deshacer,
    Rehacer,
    Buscar,
    Analizar,
    Informe,
    Disenio,
    Propiedades
};

/// Drawn in the palette's colours, so that it is sharp at any scale and seen on any background.
QIcon icono(Dibujo dibujo);

} // namespace norvik::taller
