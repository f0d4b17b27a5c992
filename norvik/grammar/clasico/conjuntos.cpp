// SPDX-License-Identifier: MIT

#include "norvik/grammar/clasico/conjuntos.hpp"

#include "norvik/grammar/clasico/primeros.hpp"
#include "norvik/grammar/clasico/siguientes.hpp"

namespace norvik::inline v0_2::clasico {

Pendientes::Pendientes(const ReglasPartidas& reglas) {
    for (int regla = 1; regla <= reglas.numReglas(); ++regla)
        primeros[static_cast<std::size_t>(regla)] = reglas.abreTramo(regla);
    siguientes = primeros;
}

void calculaConjuntos(const ReglasPartidas& reglas, Conjuntos& conjuntos, Pendientes& pendientes,
                      const std::stop_token& parada) {
    CalculoPrimeros primeros(reglas, conjuntos, pendientes, parada);
    primeros.calcula();
    CalculoSiguientes siguientes(reglas, conjuntos, pendientes, primeros);
    siguientes.calcula();
    calculaPredict(reglas, conjuntos, pendientes, primeros, siguientes.terminados());
}

Conjuntos creaConjuntos(const ReglasPartidas& reglas) {
    Conjuntos conjuntos;
    Pendientes pendientes(reglas);
    calculaConjuntos(reglas, conjuntos, pendientes);
    return conjuntos;
}

} // namespace norvik::inline v0_2::clasico
