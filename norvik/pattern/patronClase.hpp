// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/pattern/rangoUnidades.hpp"

#include <array>
#include <compare>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The sets of units that escapes name.
enum class PropiedadDeUnidad : std::uint8_t { Digito, Palabra, Espacio, Letra };

/// The units with a property, by Unicode: ranges in order, with gaps between them.
std::span<const RangoUnidades> rangosDe(PropiedadDeUnidad propiedad);
bool tiene(PropiedadDeUnidad propiedad, char16_t unidad);

/// Whether a unit belongs to a word, as boundaries understand it.
bool esDePalabra(char16_t unidad);

/// A class as it is written.
struct ClaseLeida {
    struct Escape {
        PropiedadDeUnidad propiedad;
        bool negado;

        auto operator<=>(const Escape&) const = default; // NOLINT(modernize-use-nullptr): no pointers
    };
    std::vector<RangoUnidades> rangos;
    std::vector<Escape> escapes;
    bool negada = false;

    auto operator<=>(const ClaseLeida&) const = default; // NOLINT(modernize-use-nullptr): no pointers
};

/// A set of units, ready to be asked.
class ClaseUnidades {
public:
    ClaseUnidades() = default;
    explicit ClaseUnidades(std::vector<RangoUnidades> rangos);
    ClaseUnidades(const ClaseLeida& leida, bool ignoraMayusculas);
    static ClaseUnidades deUnidad(char16_t unidad, bool ignoraMayusculas);

    bool contiene(char16_t unidad) const { return unidad < 256 ? bajas_[unidad] : contieneAlta(unidad); }
    /// In order, with gaps between them.
    const std::vector<RangoUnidades>& rangos() const { return rangos_; }

private:
    bool contieneAlta(char16_t unidad) const;

    std::vector<RangoUnidades> rangos_;
    std::array<bool, 256> bajas_{};
};

} // namespace norvik::inline v0_2
