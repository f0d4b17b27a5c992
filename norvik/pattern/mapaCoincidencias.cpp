// SPDX-License-Identifier: MIT

#include "norvik/pattern/mapaCoincidencias.hpp"

namespace norvik::inline v0_2 {

void MapaCoincidencias::reinicia(std::size_t tamanio) {
    vacia();
    celdas_.resize(tamanio + 1);
}

void MapaCoincidencias::vacia() {
    celdas_.clear();
    largas_.clear();
}

void MapaCoincidencias::guardaLarga(std::size_t posicion, std::int32_t patron, std::int32_t longitud) {
    const auto vieja = en(posicion);
    const bool pierde =
        vieja && (vieja->longitud > longitud || (vieja->longitud == longitud && vieja->patron < patron));
    if (pierde) return;
    largas_[posicion] = longitud;
    celdas_[posicion] = celda(patron, ultimo);
}

void MapaCoincidencias::borra(std::size_t posicion) {
    if (posicion < celdas_.size()) celdas_[posicion] = ninguna;
}

} // namespace norvik::inline v0_2
