#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvik {

class expresionRegular;

/// The tokens of a text by their 1-based start position: at most one a position. Look-ups take constant time.
class MapaTokens {
public:
    struct Entrada {
        const expresionRegular* definicion = nullptr; ///< null: no token starts here
        std::int32_t longitud = 0;
    };

    void vacia();
    /// Empties the map and makes room for positions `inicio` … `inicio + longitud` (a token of length 0 may
    /// stand at the very end).
    void reinicia(std::int32_t inicio, std::int32_t longitud);
    /// The entry at a position, or null. Positions outside the recognised range have none.
    const Entrada* en(std::int32_t posicion) const;
    void borra(std::int32_t posicion);
    /// Stores unless a match of the same or greater length is there. Definitions must come in priority order
    /// (or `prioridad` decide between equal lengths); see pilaTokens.
    void guarda(std::int32_t posicion, std::int32_t longitud, const expresionRegular& definicion);
    bool esVacio() const;

private:
    std::int32_t inicio_ = 1;
    std::vector<Entrada> entradas_;
};

} // namespace norvik
