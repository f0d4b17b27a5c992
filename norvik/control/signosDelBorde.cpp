// SPDX-License-Identifier: MIT

#include "norvik/control/signosDelBorde.hpp"

#include "norvik/base/numeros.hpp"

namespace norvik::inline v0_2 {

const signoDebuger& SignosDelBorde::ponSigno(std::int16_t linea) {
    constexpr std::size_t primero = 2;
    const std::int16_t indice =
        a16(signos_.size() + primero, u"el índice de la señal"); // signs are never taken away
    return signos_.emplace(indice, signoDebuger{indice, signoDebuger::error, linea}).first->second;
}

} // namespace norvik::inline v0_2
