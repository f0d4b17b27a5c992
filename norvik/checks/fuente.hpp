// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/rango.hpp"
#include "norvik/parser/analisis.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

/// A specification as it is written, with the place of everything in it.
struct FuenteEspecificacion {
    struct Definicion {
        std::u16string nombre;
        Rango lugarNombre;
        std::u16string texto; ///< between its quotes
        Rango lugarTexto;     ///< quotes included
        bool esToken = false;
        std::int16_t tipo = 0;      ///< a `TipoExpReg`
        std::u16string pseudoToken; ///< its name for people

        /// Where a part of `texto` stands.
        Rango lugarDe(std::size_t desde, std::size_t largo) const;
    };
    struct Simbolo {
        std::u16string nombre;
        Rango lugar;
    };
    struct Regla {
        Simbolo cabeza;
        std::vector<Simbolo> cuerpo; ///< none when it is empty
        Rango lugar;                 ///< of the body
    };

    std::vector<Definicion> definiciones;
    std::vector<Regla> reglas;
};

/// Of the analysis of a specification that was accepted.
FuenteEspecificacion fuenteDe(const Analisis& especificacion);

} // namespace norvik::inline v0_2
