// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/opciones.hpp"
#include "norvik/control/prestado.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/sistema.hpp"

#include <cstdint>

namespace norvik::inline v0_2 {

/// Recognises the text of the box and paints the tokens of a range of it, and nothing else. To recognise is
/// work of the system's, which may let events in; it raises what the lexer raises.
class Coloreado {
public:
    Coloreado(const Prestado<CajaTexto>& caja, const Prestado<Sistema>& sistema, pilaTokens& lexico,
              const Opciones& opciones)
        : caja_(caja), sistema_(sistema), lexico_(lexico), opciones_(opciones) {}

    /// Whether words that are written otherwise than their definition says are corrected, if that is an
    /// option.
    enum class Palabras : std::uint8_t { Corrige, Deja };
    /// The tokens that lie wholly in [inicio, fin), 0-based; the selection stays as it was. Raises
    /// `Desbordamiento` for positions that do not fit 16 bits.
    void pintaTokens(std::int32_t inicio, std::int32_t fin, Palabras palabras = Palabras::Corrige);
    /// For the parse that comes next, which then has nothing to wait for.
    void reconoceTodo();

private:
    template <typename Reconoce>
    void trabaja(const Reconoce& reconoce);
    const MapaTokens& reconoce(std::int16_t desde, std::int16_t hasta);
    void recorre(std::int32_t desde, std::int32_t hasta, Palabras palabras);
    void pintaToken(std::int32_t posicion, std::int32_t longitud, const expresionRegular& definicion,
                    Palabras palabras);

    const Prestado<CajaTexto>& caja_;
    const Prestado<Sistema>& sistema_;
    pilaTokens& lexico_;
    const Opciones& opciones_;
};

} // namespace norvik::inline v0_2
