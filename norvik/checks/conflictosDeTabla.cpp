// SPDX-License-Identifier: MIT

#include "norvik/checks/conflictosDeTabla.hpp"

#include <algorithm>
#include <cstddef>
#include <set>
#include <tuple>

namespace norvik::inline v0_2 {

namespace {

auto celda(const Conflicto& conflicto) {
    return std::tuple(conflicto.fila, conflicto.columna);
}

// The classic table notes only what finds its cell taken, not what is overwritten there.
class Clasica {
public:
    explicit Clasica(const GramaticaLR& gramatica)
        : g_(gramatica), columnas_(gramatica.partidas.numSimbolos()) {
        for (const auto& [cabeza, elementos] : g_.conjuntos.siguientes) // a head in two runs has two sets
            for (const Simbolo token : elementos)
                columnas_[static_cast<std::size_t>(cabeza)].insert(
                    static_cast<std::int16_t>(g_.tabla.codigo(g_.partidas.texto(token)) + 1));
    }

    std::vector<Conflicto> todos() {
        for (const estadoAutomata& estado : g_.automata.estados)
            for (std::size_t i = 0; i < estado.items().size(); ++i)
                if (estado.adyacentes()[i] == estadoAutomata::sinTransicion)
                    compara(static_cast<std::int16_t>(estado.getNumEstado() + 1), estado.items()[i].regla);
        std::ranges::stable_sort(conflictos_, {}, celda);
        return std::move(conflictos_);
    }

private:
    // A rule that is read to the end, and what the table has where it would reduce.
    void compara(std::int16_t fila, std::int16_t regla) {
        for (const std::int16_t columna : columnas_[static_cast<std::size_t>(g_.partidas.cabeza(regla))]) {
            if (columna == 0) continue;
            const std::int16_t queda =
                g_.tabla.entrada(static_cast<std::int16_t>(fila - 1), static_cast<std::int16_t>(columna - 1));
            if (queda != -regla) conflictos_.push_back({fila, columna, regla});
        }
    }

    const GramaticaLR& g_;
    std::vector<std::set<std::int16_t>> columnas_; // where a head reduces
    std::vector<Conflicto> conflictos_;
};

} // namespace

std::vector<Conflicto> conflictosDeTabla(const GramaticaLR& gramatica, Metodo metodo) {
    if (gramatica.automata.estados.empty()) return {};
    if (metodo == Metodo::Clasico) return Clasica(gramatica).todos();
    return gramatica.tabla.conflictos();
}

std::span<const Conflicto> conflictosEn(std::span<const Conflicto> todos, std::int16_t fila,
                                        std::int16_t columna) {
    const auto primero = std::ranges::lower_bound(todos, std::tuple(fila, columna), {}, celda);
    return {primero, std::ranges::upper_bound(todos, std::tuple(fila, columna), {}, celda)};
}

std::span<const Conflicto> conflictosEn(std::span<const Conflicto> todos, std::int16_t fila) {
    const auto primero = std::ranges::lower_bound(todos, fila, {}, &Conflicto::fila);
    return {primero, std::ranges::upper_bound(todos, fila, {}, &Conflicto::fila)};
}

} // namespace norvik::inline v0_2
