// SPDX-License-Identifier: MIT

#include "norvik/grammar/exacto/genera.hpp"

#include "norvik/grammar/exacto/automata.hpp"
#include "norvik/grammar/exacto/conjuntos.hpp"
#include "norvik/grammar/exacto/tabla.hpp"

#include <utility>

namespace norvik::inline v0_2::exacto {

GramaticaLR genera(Reglas reglas, const OpcionesTabla& opciones, const std::stop_token& parada) {
    GramaticaLR g;
    g.reglas = std::move(reglas);
    g.partidas = ReglasPartidas(g.reglas);
    const Producciones producciones(g.partidas, parada);
    g.conjuntos = creaConjuntos(producciones);
    g.automata = opciones.metodo == Metodo::Lr1 ? creaAutomataLr1(producciones, opciones.precedencias)
                                                : creaAutomata(producciones);
    g.tabla = creaTabla(producciones, g.automata, opciones, {});
    return g;
}

} // namespace norvik::inline v0_2::exacto
