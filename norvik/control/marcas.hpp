// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/estadoEdicion.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/platform/cajaTexto.hpp"

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

/// Error marks: lines and ranges in the error colour, and the signs of the left border.
class Marcas {
public:
    using Signos = std::map<std::int16_t, signoDebuger>; ///< by image number

    Marcas(const Prestado<CajaTexto>& caja, EstadoEdicion& estado) : caja_(caja), estado_(estado) {}

    /// Paints a line (1-based) without its line break; one that the text does not have is only remembered.
    void marcaLinea(std::int32_t linea, std::int32_t color);
    /// Paints the characters [inicio, fin), 0-based, of a token that stands on a line (1-based).
    void marcaToken(std::int32_t inicio, std::int32_t fin, std::int32_t linea, std::int32_t color);
    /// Adds an error sign under the first free number from 2 on. Raises `Desbordamiento` when none is left.
    const signoDebuger& ponSigno(std::int16_t linea);
    const Signos& signos() const { return signos_; }

private:
    void pinta(std::int32_t inicio, std::int32_t fin, std::int32_t color);

    const Prestado<CajaTexto>& caja_;
    EstadoEdicion& estado_;
    Signos signos_;
};

} // namespace norvik
