// SPDX-License-Identifier: MIT

#include "norvik/parser/entradaTokens.hpp"

#include "norvik/parser/erroresTexto.hpp"

namespace norvik::inline v0_2 {

// A definition may also be there to name what is wrong: its whole token is then a wrong character.
EntradaTokens::Incorrectos EntradaTokens::saltaIncorrectos() {
    Incorrectos incorrectos;
    for (;;) {
        const Lectura& lectura = lector_.lectura();
        if (lenguaje_.columna(lectura.leido) != LenguajeAnalisis::columnaError) return incorrectos;
        const auto inicio = static_cast<std::size_t>(lectura.inicio) - 1;
        const std::size_t largo = lectura.fin > lectura.inicio
                                      ? static_cast<std::size_t>(lectura.fin - lectura.inicio)
                                      : largoDeCaracter(texto_, inicio);
        if (incorrectos.fin == 0) incorrectos.inicio = inicio;
        incorrectos.fin = inicio + largo;
        lector_.leeEn(static_cast<std::int32_t>(incorrectos.fin + 1));
    }
}

} // namespace norvik::inline v0_2
