// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/sistema.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The text that a dialog searches.
struct NORVIK_API DestinoBusqueda {
    CajaTexto* textoDestino = nullptr; ///< null when its control is gone, as are its services
    Sistema* sistema = nullptr;
    /// Replaces a range (0-based) of the box's text as one step of Undo.
    std::function<void(std::int32_t inicio, std::int32_t longitud, std::u16string_view nuevo)> sustituye;
    std::optional<bool> ocultaba; ///< whether the box hid its selection before a dialog had it shown

    /// A dialog is shown: what it finds must be seen although the box lacks the focus.
    void descubreSeleccion();
    void devuelveSeleccion();
};

/// What every search of the process shares. There is one find dialog, and its text is that of the control
/// that opened it last.
struct EstadoBusqueda : DestinoBusqueda {
    std::u16string textoBuscado;
    std::u16string direccionBusqueda;
    bool soloPalabrasCompletas = false;
    std::vector<std::u16string> historialBusquedas; ///< oldest first, without repeats
    std::u16string ultimaBusqueda;
    std::vector<std::u16string> historialReemplazos; ///< the same of texts put in
    bool dialogoAbierto = false;

    /// Another text is searched from now on.
    NORVIK_API void apunta(DestinoBusqueda destino);
};

inline EstadoBusqueda& estadoBusqueda() {
    static EstadoBusqueda estado;
    return estado;
}

} // namespace norvik::inline v0_2
