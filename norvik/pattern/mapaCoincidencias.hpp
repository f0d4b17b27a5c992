// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace norvik {

/// What a joint search found in a text: at each position the match that wins there, the longest, of equal
/// ones that of the earlier pattern. Positions are 0-based, in characters; the end of the text is one, too.
/// Four bytes a position; look-ups take constant time.
class MapaCoincidencias {
public:
    static constexpr std::int32_t maximoPatrones = 0xFFFF;

    struct Ganadora {
        std::int32_t patron = 0; ///< by its 0-based place
        std::int32_t longitud = 0;
    };

    /// For a text of so many characters, without any match.
    void reinicia(std::size_t tamanio);
    void vacia();
    /// The match that starts at a position. There is none beyond the text.
    std::optional<Ganadora> en(std::size_t posicion) const {
        const std::uint32_t celda = posicion < celdas_.size() ? celdas_[posicion] : ninguna;
        if (celda == ninguna) return std::nullopt;
        const auto patron = static_cast<std::int32_t>(ultimo - (celda & ultimo));
        const std::uint32_t longitud = celda >> 16;
        return Ganadora{patron, longitud < ultimo ? static_cast<std::int32_t>(longitud)
                                                  : largas_.find(posicion)->second};
    }
    /// Stores a match of a pattern below `maximoPatrones`, unless one that wins over it is there. The
    /// position is one of the text's.
    void guarda(std::size_t posicion, std::int32_t patron, std::size_t longitud) {
        if (longitud >= ultimo) return guardaLarga(posicion, patron, static_cast<std::int32_t>(longitud));
        const std::uint32_t nueva = celda(patron, static_cast<std::uint32_t>(longitud));
        if (nueva > celdas_[posicion]) celdas_[posicion] = nueva;
    }
    void borra(std::size_t posicion);
    /// Number of positions: those of the text's characters and its end.
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

} // namespace norvik
