// SPDX-License-Identifier: MIT

#include "norvik/grammar/exacto/tabla.hpp"

#include "norvik/grammar/columnas.hpp"
#include "norvik/grammar/exacto/adelantos.hpp"
#include "norvik/grammar/exacto/conjuntos.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace norvik::exacto {

namespace {

// By state and item, as `adelantos` gives them.
std::vector<std::vector<Bits>> porSiguientes(const Producciones& producciones, const AutomataLR& automata) {
    const std::vector<Bits> detras = siguientes(producciones);
    std::vector<std::vector<Bits>> todos;
    for (const estadoAutomata& estado : automata.estados) {
        std::vector<Bits>& suyos = todos.emplace_back();
        for (const Item item : estado.items())
            suyos.push_back(detras[Producciones::indice(producciones.reglas().cabeza(item.regla))]);
    }
    return todos;
}

class Fila {
public:
    Fila(std::int16_t numero, const TablaLR& tabla)
        : numero_(numero), tabla_(tabla), celdas_(static_cast<std::size_t>(tabla.celdas().columnas())) {}

    void desplaza(std::size_t columna, std::int16_t destino) { celdas_[columna] = destino; }
    // Shifts come first, then the reductions by rule.
    void reduce(std::size_t columna, std::int16_t regla) {
        const bool acepta = tabla_.entrada(static_cast<std::int16_t>(numero_ - 1),
                                           static_cast<std::int16_t>(columna)) == TablaLR::aceptar;
        if (celdas_[columna] == 0 && !acepta)
            celdas_[columna] = static_cast<std::int16_t>(-regla);
        else
            conflictos_.push_back({numero_, static_cast<std::int16_t>(columna + 1), regla});
    }
    void guarda(TablaLR& tabla) { tabla.ponFila(numero_, celdas_, std::move(conflictos_)); }

private:
    std::int16_t numero_;
    const TablaLR& tabla_;
    std::vector<std::int16_t> celdas_;
    std::vector<Conflicto> conflictos_;
};

void rellena(const estadoAutomata& estado, const std::vector<Bits>& adelantos, const Columnas& columnas,
             std::int16_t numero, TablaLR& tabla) {
    Fila fila(numero, tabla);
    std::vector<std::size_t> acabados;
    for (std::size_t i = 0; i < estado.items().size(); ++i) {
        const std::int16_t destino = estado.adyacentes()[i];
        if (destino == estadoAutomata::sinTransicion)
            acabados.push_back(i);
        else
            fila.desplaza(columnas.de(estado.items()[i]), destino);
    }
    std::ranges::sort(acabados, {}, [&](std::size_t i) { return estado.items()[i].regla; });
    for (const std::size_t i : acabados)
        adelantos[i].paraCada([&](std::size_t simbolo) {
            fila.reduce(columnas.de(static_cast<Simbolo>(simbolo)), estado.items()[i].regla);
        });
    fila.guarda(tabla);
}

} // namespace

TablaLR creaTabla(const Producciones& producciones, const AutomataLR& automata, Metodo metodo,
                  SimbolosTabla otros) {
    if (producciones.cabezas().empty()) return {};
    reuneSimbolos(producciones.reglas(), otros);
    TablaLR tabla(std::move(otros), producciones.reglas().texto(producciones.inicial()),
                  automata.estados.size());
    const auto reducen =
        metodo == Metodo::Slr ? porSiguientes(producciones, automata) : adelantos(producciones, automata);
    const Columnas columnas(producciones.reglas(), tabla);
    for (std::size_t i = 0; i < automata.estados.size(); ++i)
        rellena(automata.estados[i], reducen[i], columnas, static_cast<std::int16_t>(i + 1), tabla);
    return tabla;
}

} // namespace norvik::exacto
