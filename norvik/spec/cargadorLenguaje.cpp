// SPDX-License-Identifier: MIT

#include "norvik/spec/cargadorLenguaje.hpp"

#include "norvik/lexer/definicionDePatron.hpp"

namespace norvik::inline v0_2 {

void CargadorLenguaje::SetPatron(std::u16string_view patron, std::u16string_view nomER,
                                 std::int32_t tipoToken, std::u16string_view pseudoToken,
                                 std::int32_t baseToken, std::int32_t colorTexto) {
    SetER(definicionDePatron(patron), nomER, true, tipoToken, pseudoToken, baseToken, colorTexto);
}

} // namespace norvik::inline v0_2
