// SPDX-License-Identifier: MIT

#include "norvik/grammar/exacto/tabla.hpp"

#include "norvik/grammar/columnas.hpp"
#include "norvik/grammar/exacto/adelantos.hpp"
#include "norvik/grammar/exacto/conjuntos.hpp"
#include "norvik/grammar/exacto/prioridades.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace norvik::inline v0_2::exacto {

namespace {

// By state and item, as `adelantos` gives them.
std::vector<std::vector<Bits>> porSiguientes(const Producciones& producciones, const AutomataLR& automata) {
    const std::vector<Bits> detras = siguientes(producciones);
    std::vector<std::vector<Bits>> todos;
    for (const estadoAutomata& estado : automata.estados) {
        producciones.exigeSeguir();
        std::vector<Bits>& suyos = todos.emplace_back();
        for (const Item item : estado.items())
            suyos.push_back(detras[Producciones::indice(producciones.reglas().cabeza(item.regla))]);
    }
    return todos;
}

class Rellenador {
public:
    Rellenador(const ReglasPartidas& reglas, const Columnas& columnas, const Prioridades& prioridades,
               TablaLR& tabla)
        : columnas_(columnas), prioridades_(prioridades), tabla_(tabla), reducen_(reglas.numSimbolos()) {}

    void rellena(std::int16_t numero, const estadoAutomata& estado, const std::vector<Bits>& adelantos) {
        std::vector<std::int16_t> fila(static_cast<std::size_t>(tabla_.celdas().columnas()));
        std::vector<std::size_t> acabados;
        for (std::size_t i = 0; i < estado.items().size(); ++i) {
            const std::int16_t destino = estado.adyacentes()[i];
            if (destino == estadoAutomata::sinTransicion)
                acabados.push_back(i);
            else
                fila[columnas_.de(estado.items()[i])] = destino;
        }
        std::ranges::sort(acabados, {}, [&](std::size_t i) { return estado.items()[i].regla; });
        for (const std::size_t i : acabados)
            adelantos[i].paraCada(
                [&](std::size_t token) { reducen_[token].push_back(estado.items()[i].regla); });
        tabla_.ponFila(numero, fila, reduce(numero, fila));
    }

private:
    // Writes the reductions into a row that has its shifts, and gives what is kept out of it.
    std::vector<Conflicto> reduce(std::int16_t numero, std::vector<std::int16_t>& fila) {
        std::vector<Conflicto> conflictos;
        for (std::size_t token = 0; token < reducen_.size(); ++token) {
            std::vector<std::int16_t>& reglas = reducen_[token];
            if (reglas.empty()) continue;
            const std::size_t c = columnas_.de(static_cast<Simbolo>(token));
            const bool acepta = tabla_.entrada(static_cast<std::int16_t>(numero - 1),
                                               static_cast<std::int16_t>(c)) == TablaLR::aceptar;
            const auto [accion, fuera] =
                prioridades_.elige(static_cast<Simbolo>(token), acepta || fila[c] > 0, reglas);
            if (*accion <= 0) fila[c] = *accion;
            for (const std::int16_t regla : fuera)
                conflictos.push_back({numero, static_cast<std::int16_t>(c + 1), regla});
            reglas.clear();
        }
        return conflictos;
    }

    const Columnas& columnas_;
    const Prioridades& prioridades_;
    TablaLR& tabla_;
    std::vector<std::vector<std::int16_t>> reducen_; // rules of the row, by token
};

} // namespace

TablaLR creaTabla(const Producciones& producciones, const AutomataLR& automata, const OpcionesTabla& opciones,
                  SimbolosTabla otros) {
    if (producciones.cabezas().empty()) return {};
    reuneSimbolos(producciones.reglas(), otros);
    TablaLR tabla(std::move(otros), producciones.reglas().texto(producciones.inicial()),
                  automata.estados.size());
    const auto reducen = opciones.metodo == Metodo::Slr ? porSiguientes(producciones, automata)
                                                        : adelantos(producciones, automata);
    const Columnas columnas(producciones.reglas(), tabla);
    const Prioridades prioridades(producciones.reglas(), opciones.precedencias);
    Rellenador rellenador(producciones.reglas(), columnas, prioridades, tabla);
    for (std::size_t i = 0; i < automata.estados.size(); ++i) {
        producciones.exigeSeguir();
        rellenador.rellena(static_cast<std::int16_t>(i + 1), automata.estados[i], reducen[i]);
    }
    return tabla;
}

} // namespace norvik::inline v0_2::exacto
