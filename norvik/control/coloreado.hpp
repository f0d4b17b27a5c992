// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/colocacion.hpp"
#include "norvik/control/estadoEdicion.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/cajaTexto.hpp"

#include <cstdint>

namespace norvik {

/// Syntax colouring of the text box. Lines are 1-based, character positions 0-based.
class Coloreado {
public:
    Coloreado(const Prestado<CajaTexto>& caja, pilaTokens& lexico, const Opciones& opciones,
              EstadoEdicion& estado, Colocacion& colocacion)
        : caja_(caja), lexico_(lexico), opciones_(opciones), estado_(estado), colocacion_(colocacion) {}

    /// Colours the tokens that lie wholly in [inicio, fin); does nothing while `colorear` is off. `linea` is
    /// the line that the range is, or `ningunaLinea`: a line marked as an error loses its mark. Raises
    /// `Desbordamiento` for positions that do not fit 16 bits.
    void coloreaRango(std::int32_t inicio, std::int32_t fin, std::int32_t linea);
    void coloreaLinea(std::int32_t linea);
    void coloreaTodo();
    /// Paints a line in colour 0, whether colouring is on or not; a mark on it goes.
    void descoloreaLinea(std::int32_t linea);

    static constexpr std::int32_t ningunaLinea = -1;

private:
    void pintaTokens(std::int32_t desde, std::int32_t hasta);
    void pintaToken(std::int32_t posicion, std::int32_t longitud, const expresionRegular& definicion);

    const Prestado<CajaTexto>& caja_;
    pilaTokens& lexico_;
    const Opciones& opciones_;
    EstadoEdicion& estado_;
    Colocacion& colocacion_;
};

} // namespace norvik
