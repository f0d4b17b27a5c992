// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/entradaTokens.hpp"
#include "norvik/parser/fichasTokens.hpp"
#include "norvik/parser/gastoReparaciones.hpp"
#include "norvik/parser/lenguajeAnalisis.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace norvik::inline v0_2 {

/// One step of a repair: a token is put in, taken out, or kept.
struct PasoReparacion {
    enum class Tipo : std::uint8_t { Inserta, Quita, Conserva };

    Tipo tipo = Tipo::Conserva;
    std::int16_t columna = 0; ///< of the token that is put in

    bool operator==(const PasoReparacion&) const = default;
};

/// From the wrong token on; the last step keeps nothing.
using Reparacion = std::vector<PasoReparacion>;

/// What a search needs of its surroundings, which outlive it.
struct LugarDeError {
    std::span<const std::int16_t> pila; ///< states before the wrong token asked for anything, from the bottom
    EntradaTokens& entrada;
    std::size_t token = 0; ///< number of the wrong one
    bool sigue = false;    ///< the text goes on where the tokens end: whoever comes there has repaired it
};

/// The repairs of least cost, those after which parsing gets furthest, the likeliest first; none when the
/// budget ends before one is found. Raises `OperacionCancelada`.
std::vector<Reparacion> buscaReparaciones(const LugarDeError& lugar, const LenguajeAnalisis& lenguaje,
                                          const FichasTokens& fichas, GastoReparaciones& gasto);

} // namespace norvik::inline v0_2
