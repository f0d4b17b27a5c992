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

    // Shifts come first, then what takes some of them away, then the reductions by rule.
    void desplaza(std::size_t columna, std::int16_t destino) { celdas_[columna] = destino; }
    bool desplaza(std::size_t columna) const { return celdas_[columna] > 0; }
    void quita(std::size_t columna) { celdas_[columna] = 0; }
    // Nothing can be done there.
    void anula(std::size_t columna) {
        quita(columna);
        anuladas_.push_back(columna);
    }
    void reduce(std::size_t columna, std::int16_t regla) {
        if (std::ranges::find(anuladas_, columna) != anuladas_.end()) return;
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
    std::vector<std::size_t> anuladas_;
    std::vector<Conflicto> conflictos_;
};

class Rellenador {
public:
    Rellenador(const Columnas& columnas, const Prioridades& prioridades, TablaLR& tabla)
        : columnas_(columnas), prioridades_(prioridades), tabla_(tabla) {}

    void rellena(std::int16_t numero, const estadoAutomata& estado, const std::vector<Bits>& adelantos) {
        Fila fila(numero, tabla_);
        std::vector<std::size_t> acabados;
        for (std::size_t i = 0; i < estado.items().size(); ++i) {
            const std::int16_t destino = estado.adyacentes()[i];
            if (destino == estadoAutomata::sinTransicion)
                acabados.push_back(i);
            else
                fila.desplaza(columnas_.de(estado.items()[i]), destino);
        }
        std::ranges::sort(acabados, {}, [&](std::size_t i) { return estado.items()[i].regla; });
        reducciones_.clear();
        for (const std::size_t i : acabados)
            adelantos[i].paraCada([&](std::size_t simbolo) {
                prevalece(static_cast<Simbolo>(simbolo), estado.items()[i].regla, fila);
            });
        for (const auto& [columna, regla] : reducciones_) fila.reduce(columna, regla);
        fila.guarda(tabla_);
    }

private:
    // A shift that a rule beats is gone for the rules behind it.
    void prevalece(Simbolo token, std::int16_t regla, Fila& fila) {
        const std::size_t columna = columnas_.de(token);
        switch (fila.desplaza(columna) ? prioridades_.decide(regla, token) : Decision::Conflicto) {
        case Decision::Desplaza:
            return;
        case Decision::Ninguna:
            fila.anula(columna);
            return;
        case Decision::Reduce:
            fila.quita(columna);
            break;
        case Decision::Conflicto:
            break;
        }
        reducciones_.emplace_back(columna, regla);
    }

    const Columnas& columnas_;
    const Prioridades& prioridades_;
    TablaLR& tabla_;
    std::vector<std::pair<std::size_t, std::int16_t>> reducciones_; // of the row, by column and rule
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
    Rellenador rellenador(columnas, prioridades, tabla);
    for (std::size_t i = 0; i < automata.estados.size(); ++i)
        rellenador.rellena(static_cast<std::int16_t>(i + 1), automata.estados[i], reducen[i]);
    return tabla;
}

} // namespace norvik::inline v0_2::exacto
