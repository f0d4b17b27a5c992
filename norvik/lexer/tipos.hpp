// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace norvik::inline v0_2 {

/// Clases de tokens.
enum TipoExpReg : std::int16_t {
    Norvik_ExpReg = 0,
    Norvik_PalabraReservada = 1,
    Norvik_Operador = 2,
    Norvik_ComentarioBloque = 3,
    Norvik_ComentarioLinea = 4,
    Norvik_Cadena = 5,
    Norvik_Caracter = 6,
    Norvik_Numero = 7,
    Norvik_Etiqueta = 8,
    Norvik_AutoExpReg = 9,
    Norvik_Fecha = 10,
};

/// Bases numéricas; 0 es ninguna.
enum baseNumerica : std::int16_t {
    Norvik_SinBase = 0,
    Norvik_BaseBinaria = 2,
    Norvik_BaseOctal = 8,
    Norvik_BaseDecimal = 10,
    Norvik_BaseHexadecimal = 16,
};

/// El color que significa ninguno; los demás son 0x00BBGGRR.
inline constexpr std::int32_t sinColor = -1;

} // namespace norvik::inline v0_2
