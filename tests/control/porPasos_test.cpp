// SPDX-License-Identifier: MIT

// The control on the box kept in memory does what its steps say, whatever is typed and called.
#include "control/ordenesAlAzar.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"

using namespace norvik;

TEST(PorPasos, TeclasYLlamadasAlAzar) {
    for (const unsigned semilla : {1U, 2U}) {
        CajaTexto caja;
        SistemaMemoria sistema{{}};
        Norvik norvik{caja, sistema};
        OrdenesAlAzar ordenes(norvik, caja,
                              {[&](const Golpe& g) { pulsa(caja, g); }, [&] { norvik.tabuladorEnfocado(); },
                               [&] { caja.eventos.pierdeFoco(); }},
                              semilla);
        ordenes.haz(pasos(25'000));
    }
}
