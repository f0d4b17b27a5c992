// SPDX-License-Identifier: MIT

#include "norvik/control/lenguajeDeAhora.hpp"

#include "norvik/control/colorista.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/spec/lenguajeDelControl.hpp"

namespace norvik::inline v0_2 {

const Lenguaje& LenguajeDeAhora::dame() {
    const Edicion ahora{lexico_.edicion(), reglas_.edicion()};
    if (!lenguaje_ || edicion_ != ahora) lenguaje_ = lenguajeDe(lexico_, reglas_);
    edicion_ = ahora;
    return *lenguaje_;
}

std::unique_ptr<Colorista> LenguajeDeAhora::colorista() {
    return std::make_unique<Colorista>(dame(), lexico_);
}

} // namespace norvik::inline v0_2
