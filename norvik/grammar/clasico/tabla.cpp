// SPDX-License-Identifier: MIT

#include "norvik/grammar/clasico/tabla.hpp"

#include "norvik/base/presupuesto.hpp"
#include "norvik/grammar/columnas.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

// The SLR table, read off the automaton (DeRemer 1971) with two departures: a shift overwrites whatever its
// cell holds and says nothing; a reduction that finds its cell taken leaves it and is noted as a conflict.
namespace norvik::inline v0_2::clasico {

namespace {

/// Column codes of the FOLLOW sets of heads.
class Reducciones {
public:
    Reducciones(const ReglasPartidas& reglas, const Conjuntos& conjuntos, const Columnas& columnas)
        : siguientes_(reglas.numSimbolos()) {
        // A head in two runs of rules has two sets, and each of them reduces.
        for (const auto& [nombre, elementos] : conjuntos.siguientes)
            for (const Simbolo simbolo : elementos)
                siguientes_[static_cast<std::size_t>(nombre)].push_back(columnas.de(simbolo));
    }

    const std::vector<std::size_t>& de(Simbolo cabeza) const {
        return siguientes_[static_cast<std::size_t>(cabeza)];
    }

private:
    std::vector<std::vector<std::size_t>> siguientes_;
};

void rellena(const ReglasPartidas& reglas, const Columnas& columnas, const Reducciones& reducciones,
             const AutomataLR& automata, const std::stop_token& parada, TablaLR& tabla) {
    std::int16_t numero = 0;
    std::vector<std::int16_t> fila(static_cast<std::size_t>(tabla.celdas().columnas()));
    for (const estadoAutomata& estado : automata.estados) {
        exigeSeguir(parada);
        ++numero;
        std::vector<Conflicto> conflictos;
        std::ranges::fill(fila, std::int16_t{0});
        for (std::size_t i = 0; i < estado.items().size(); ++i) {
            const Item item = estado.items()[i];
            if (const auto destino = estado.adyacentes()[i]; destino != estadoAutomata::sinTransicion) {
                fila[columnas.de(item)] = destino;
                continue;
            }
            for (const std::size_t c : reducciones.de(reglas.cabeza(item.regla))) {
                if (fila[c] == 0)
                    fila[c] = static_cast<std::int16_t>(-item.regla);
                else
                    conflictos.push_back({numero, static_cast<std::int16_t>(c + 1), item.regla});
            }
        }
        tabla.ponFila(numero, fila, std::move(conflictos));
    }
}

} // namespace

TablaLR creaTabla(const ReglasPartidas& reglas, const Conjuntos& conjuntos, const AutomataLR& automata,
                  SimbolosTabla otros, const std::stop_token& parada) {
    if (!reglas.hayInicial()) return {};
    reuneSimbolos(reglas, otros);
    TablaLR tabla(std::move(otros), reglas.texto(reglas.cabeza(1)), automata.estados.size());
    const Columnas columnas(reglas, tabla);
    rellena(reglas, columnas, Reducciones(reglas, conjuntos, columnas), automata, parada, tabla);
    return tabla;
}

} // namespace norvik::inline v0_2::clasico
