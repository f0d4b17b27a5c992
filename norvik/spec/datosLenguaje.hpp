// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/grammar/celdaSLR.hpp"

#include <cstdint>
#include <span>
#include <string_view>

namespace norvik::inline v0_2 {

class CargadorLenguaje;

/// Un lenguaje con su tabla, como datos que caben en una constante: lo que lleva la cabecera que escribe
/// `norvik modulo --lenguaje cpp`. No es dueño de nada de lo que nombra.
struct DatosLenguaje {
    /// Una definición de token, con su patrón ya expandido.
    struct Definicion {
        std::u16string_view patron;
        std::u16string_view nombre;
        std::int32_t tipo = 0; ///< un `TipoExpReg`
        std::u16string_view pseudoToken;
        std::int32_t base = 0;   ///< una `baseNumerica`
        std::int32_t color = -1; ///< 0x00BBGGRR o `sinColor`
    };

    std::span<const Definicion> definiciones;
    std::span<const std::u16string_view> reglas; ///< como las toma `SetRegla`: «cabeza -> cuerpo»
    std::int16_t filas = 0;                      ///< de la tabla
    std::int16_t columnas = 0;
    std::span<const CeldaSLR> celdas;              ///< las entradas de la tabla que no están vacías
    std::span<const std::u16string_view> simbolos; ///< en el orden de las columnas
    bool distingueMayusculas = false;
};

/// Carga un lenguaje en un control, con las llamadas de su módulo. Se añade a lo que el control ya tuviera.
/// Lanza lo que lanzan esas llamadas.
NORVIK_API void CargaLenguaje(const DatosLenguaje& datos, CargadorLenguaje& control);

} // namespace norvik::inline v0_2
