// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/pattern/mapaCoincidencias.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

class expresionRegular;

/// The tokens of a text by their 1-based start position: at most one a position. Look-ups take constant time.
/// The map keeps the text that it was made of.
class MapaTokens {
public:
    struct Entrada {
        const expresionRegular* definicion = nullptr;
        std::int32_t longitud = 0;
        std::u16string_view texto; ///< what was matched; holds until the next recognition
    };
    /// The same in short: the definition by its 0-based place in registration order, and the length.
    using Ganadora = MapaCoincidencias::Ganadora;

    /// The definitions outlive the map.
    explicit MapaTokens(const std::vector<const expresionRegular*>& definiciones)
        : definiciones_(&definiciones) {}
    MapaTokens(const MapaTokens&) = delete;
    MapaTokens& operator=(const MapaTokens&) = delete;
    ~MapaTokens() = default;

    void vacia();
    /// Empties the map for a text that starts at a position, and gives what is to be filled.
    MapaCoincidencias& reinicia(std::int32_t inicio, std::u16string_view texto);
    /// The entry at a position, or nothing. Positions outside the recognised range have none. A token of
    /// length 0 may stand at the very end.
    std::optional<Entrada> en(std::int32_t posicion) const;
    std::optional<Ganadora> ganadoraEn(std::int32_t posicion) const {
        return coincidencias_.en(indice(posicion));
    }
    /// The text that was recognised; it stays until the next recognition.
    std::u16string_view texto() const { return texto_; }
    /// Matched text of an entry, which must be the map's.
    std::u16string_view texto(std::int32_t posicion, const Ganadora& ganadora) const {
        return std::u16string_view(texto_).substr(indice(posicion),
                                                  static_cast<std::size_t>(ganadora.longitud));
    }
    void borra(std::int32_t posicion) { coincidencias_.borra(indice(posicion)); }
    bool esVacio() const;
    /// One line an entry, "position length token", in order of position.
    std::u16string toString() const;

private:
    std::size_t indice(std::int32_t posicion) const {
        return static_cast<std::size_t>(static_cast<std::uint32_t>(posicion - inicio_));
    }

    const std::vector<const expresionRegular*>* definiciones_;
    std::int32_t inicio_ = 1;
    std::u16string texto_;
    MapaCoincidencias coincidencias_;
};

} // namespace norvik
