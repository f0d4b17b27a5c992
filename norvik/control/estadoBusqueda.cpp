// SPDX-License-Identifier: MIT

#include "norvik/control/estadoBusqueda.hpp"

#include <utility>

namespace norvik::inline v0_2 {

void DestinoBusqueda::descubreSeleccion() {
    if (textoDestino == nullptr) return;
    ocultaba = textoDestino->ocultaSeleccion();
    textoDestino->ponOcultaSeleccion(false);
}

void DestinoBusqueda::devuelveSeleccion() {
    const auto antes = std::exchange(ocultaba, std::nullopt);
    if (textoDestino != nullptr && antes) textoDestino->ponOcultaSeleccion(*antes);
}

void EstadoBusqueda::apunta(DestinoBusqueda destino) {
    devuelveSeleccion();
    DestinoBusqueda::operator=(std::move(destino));
    if (dialogoAbierto) descubreSeleccion();
}

} // namespace norvik::inline v0_2
