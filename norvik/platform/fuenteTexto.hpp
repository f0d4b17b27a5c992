// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <string_view>

namespace norvik::inline v0_2 {

/// Un texto con servicios de líneas. Posiciones y líneas cuentan desde 0; un salto de línea (CR LF, o un CR o
/// un LF solo) pertenece a la línea que acaba.
class NORVIK_API FuenteTexto {
public:
    FuenteTexto() = default;
    FuenteTexto(const FuenteTexto&) = delete;
    FuenteTexto& operator=(const FuenteTexto&) = delete;
    virtual ~FuenteTexto() = default;

    /// El texto entero; la vista vale hasta el siguiente cambio.
    virtual std::u16string_view texto() const = 0;
    /// Línea del carácter de una posición; una posición más allá del texto está en la última línea.
    virtual std::int32_t lineaDeCaracter(std::int32_t posicion) const = 0;
    /// Posición del primer carácter de una línea, -1 cuando no existe.
    virtual std::int32_t inicioDeLinea(std::int32_t linea) const = 0;
    virtual std::int32_t numeroDeLineas() const = 0;
};

} // namespace norvik::inline v0_2
