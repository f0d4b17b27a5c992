// SPDX-License-Identifier: MIT

#include "norvik/lexer/reconocedor.hpp"

#include "norvik/base/errores.hpp"

#include <cstddef>

namespace norvik::inline v0_2 {

namespace {

std::vector<const Emparejador*> patronesDe(const DefinicionesTokens& definiciones) {
    std::vector<const Emparejador*> patrones;
    for (const expresionRegular* const definicion : definiciones.tokens())
        patrones.push_back(&*definicion->expReg);
    return patrones;
}

} // namespace

Reconocedor::Reconocedor(const DefinicionesTokens& definiciones)
    : tokens_(definiciones.tokens()), buscador_(patronesDe(definiciones)) {}

void Reconocedor::reconoce(std::u16string_view texto, const Presupuesto& presupuesto,
                           MapaCoincidencias& mapa) {
    try {
        buscador_.busca(texto, presupuesto, mapa);
    } catch (const BusquedaDesbocada&) {
        throw BusquedaDesbocada(tokens_[static_cast<std::size_t>(buscador_.ultimoPatron())]->nomER);
    }
}

} // namespace norvik::inline v0_2
