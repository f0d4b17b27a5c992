// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace norvik {

/// Lo que `ControlNorvik::accion` da hecho para los menús y las barras de un anfitrión.
enum class AccionNorvik : std::uint8_t {
    Deshacer,
    Rehacer,
    Cortar,
    Copiar,
    Pegar,
    SeleccionarTodo,
    Buscar, ///< en la barra de búsqueda, si es una de las ayudas encendidas; si no, en su diálogo
    BuscarSiguiente,
    BuscarAnterior,
    Reemplazar,
    IrALinea,
    Acercar, ///< la letra se ve mayor; su fuente no cambia
    Alejar,
    TamanoNormal,
    Plegar ///< la construcción del cursor, o desplegarla; sirve con su ayuda
};

inline constexpr int numeroDeAcciones = static_cast<int>(AccionNorvik::Plegar) + 1;

} // namespace norvik
