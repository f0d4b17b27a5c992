// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <map>

namespace norvik::inline v0_2 {

/// Una señal del borde izquierdo.
struct signoDebuger {
    static constexpr std::int16_t error = 1;

    std::int16_t indice = 0; ///< número de la imagen que la enseña
    std::int16_t tipoSigno = error;
    std::int16_t lineaAfectada = 0; ///< desde 1

    bool operator==(const signoDebuger&) const = default;
};

/// Las señales del borde izquierdo: se ponen y no se quitan.
class NORVIK_API SignosDelBorde {
public:
    using PorIndice = std::map<std::int16_t, signoDebuger>;

    /// Añade una señal de error con el primer número libre desde el 2. Lanza `Desbordamiento` cuando no queda
    /// ninguno.
    const signoDebuger& ponSigno(std::int16_t linea);
    const PorIndice& signos() const { return signos_; }

private:
    PorIndice signos_;
};

} // namespace norvik::inline v0_2
