// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace norvik::inline v0_2 {

/// Lo que la búsqueda conjunta encontró en un texto: en cada posición, la coincidencia que gana, que es la
/// más larga, y de las iguales la del primer patrón. Posiciones desde 0, en caracteres; el final del texto es
/// una más. Cuatro bytes por posición; buscar cuesta lo mismo en cualquier texto.
class NORVIK_API MapaCoincidencias {
public:
    static constexpr std::int32_t maximoPatrones = 0xFFFF;

    struct Ganadora {
        std::int32_t patron = 0; ///< por su lugar, desde 0
        std::int32_t longitud = 0;
    };

    /// Para un texto de tantos caracteres, sin ninguna coincidencia.
    void reinicia(std::size_t tamanio);
    void vacia();
    /// La que empieza en una posición; ninguna pasado el texto.
    std::optional<Ganadora> en(std::size_t posicion) const {
        const std::uint32_t celda = posicion < celdas_.size() ? celdas_[posicion] : ninguna;
        if (celda == ninguna) return std::nullopt;
        const auto patron = static_cast<std::int32_t>(ultimo - (celda & ultimo));
        const std::uint32_t longitud = celda >> 16;
        return Ganadora{patron, longitud < ultimo ? static_cast<std::int32_t>(longitud)
                                                  : largas_.find(posicion)->second};
    }
    /// Guarda una coincidencia de un patrón por debajo de `maximoPatrones`, si ninguna de las que hay le
    /// gana. La posición es del texto.
    void guarda(std::size_t posicion, std::int32_t patron, std::size_t longitud) {
        if (longitud >= ultimo) return guardaLarga(posicion, patron, static_cast<std::int32_t>(longitud));
        const std::uint32_t nueva = celda(patron, static_cast<std::uint32_t>(longitud));
        if (nueva > celdas_[posicion]) celdas_[posicion] = nueva;
    }
    void borra(std::size_t posicion);
    /// Cuántas posiciones hay: las de los caracteres del texto y su final.
    std::size_t tamanio() const { return celdas_.size(); }

private:
    // A cell holds the length and, below it, the place counted down: the greater cell wins. A length that
    // does not fit stands apart.
    static constexpr std::uint32_t ninguna = 0;
    static constexpr std::uint32_t ultimo = 0xFFFF;

    static std::uint32_t celda(std::int32_t patron, std::uint32_t longitud) {
        return longitud << 16 | (ultimo - static_cast<std::uint32_t>(patron));
    }
    void guardaLarga(std::size_t posicion, std::int32_t patron, std::int32_t longitud);

    std::vector<std::uint32_t> celdas_;
    std::unordered_map<std::size_t, std::int32_t> largas_; ///< lengths by position
};

} // namespace norvik::inline v0_2
