// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>

namespace norvik {

/// A sign of the left border.
struct signoDebuger {
    static constexpr std::int16_t error = 1;

    std::int16_t indice = 0; ///< number of the image that shows it
    std::int16_t tipoSigno = error;
    std::int16_t lineaAfectada = 0; ///< 1-based

    bool operator==(const signoDebuger&) const = default;
};

/// The signs of the left border, which are only ever added.
class SignosDelBorde {
public:
    using PorIndice = std::map<std::int16_t, signoDebuger>;

    /// Adds an error sign under the first free number from 2 on. Raises `Desbordamiento` when none is left.
    const signoDebuger& ponSigno(std::int16_t linea);
    const PorIndice& signos() const { return signos_; }

private:
    PorIndice signos_;
};

} // namespace norvik
