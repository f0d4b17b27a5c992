// SPDX-License-Identifier: MIT

#include "norvik/grammar/clasico/genera.hpp"

#include "norvik/grammar/clasico/automata.hpp"
#include "norvik/grammar/clasico/conjuntos.hpp"
#include "norvik/grammar/clasico/tabla.hpp"

#include <utility>

namespace norvik::inline v0_2::clasico {

GramaticaLR genera(Reglas reglas) {
    GramaticaLR g;
    g.reglas = std::move(reglas);
    g.partidas = ReglasPartidas(g.reglas);
    g.conjuntos = creaConjuntos(g.partidas);
    g.automata = creaAutomata(g.partidas);
    g.tabla = creaTabla(g.partidas, g.conjuntos, g.automata);
    return g;
}

} // namespace norvik::inline v0_2::clasico
