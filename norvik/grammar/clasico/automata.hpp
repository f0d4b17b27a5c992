// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/automataLR.hpp"
#include "norvik/grammar/reglasPartidas.hpp"

#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace norvik::inline v0_2::clasico {

/// The LR(0) automaton of a grammar, empty when there is no start symbol.
/// Raises `Desbordamiento` at the thousandth state, `SubindiceFueraDeIntervalo` at a state's item 1001,
/// `OperacionCancelada` once that is asked for.
AutomataLR creaAutomata(const ReglasPartidas& reglas, const std::stop_token& parada = {});

/// Builds the automaton state by state.
class ConstructorAutomata {
public:
    /// The highest number of states: the value 1000 of the table means acceptance.
    static constexpr std::int16_t maximoEstados = 999;

    /// Goes on from a list of states, `numEstados` being the next free number.
    ConstructorAutomata(const ReglasPartidas& reglas, std::vector<estadoAutomata> estados,
                        std::int16_t numEstados);

    /// Adds to a state the items of a head's rules, and of the heads these begin with.
    void aniadeRegla(Simbolo variable, estadoAutomata& estado);
    /// Adds the kernel's items, each with what follows from it.
    void aniadeNucleo(const Nucleo& nucleo, estadoAutomata& estado);
    /// Adds a state and all that are reached from it. Raises what `creaAutomata` does.
    void construyeTransiciones(estadoAutomata estado, const std::stop_token& parada = {});

    /// The states in the list's present order.
    std::vector<estadoAutomata> estados() &&;
    std::int16_t numEstados() const { return numEstados_; }

private:
    /// What the search for a target needs to know of a state in the list.
    struct EnLista {
        std::size_t inicio = 0; ///< in `nucleos_`, of the numbers of its items with a dot beyond the start
        std::size_t largo = 0;
        std::uint64_t firma = 0; ///< one bit for each of its items, hashed
        std::uint32_t momento = 0;
    };
    /// The states that have an item in their kernel, as a list through `posesiones_`; −1 is its end.
    struct Poseedores {
        int cuantos = 0;
        int ultima = -1;
    };
    struct Posesion {
        int estado = 0;
        int anterior = -1;
    };
    /// Items of a state with the same next symbol, as a part of `Marco::miembros`.
    struct Grupo {
        std::int16_t inicio = 0;
        std::int16_t cuantos = 0;
        std::uint32_t momento = 0; ///< of the last search; the list has not changed while it equals the clock
    };
    /// A state whose transitions are being built; hundreds may be, of hundreds of items each.
    struct Marco {
        std::size_t estado = 0;
        std::size_t item = 0;
        std::vector<Grupo> grupos;
        std::vector<std::int16_t> grupoDe;  ///< by item; −1 without transition
        std::vector<std::int16_t> miembros; ///< 0-based items, group by group
    };

    int numero(Item item) const { return primerItem_[static_cast<std::size_t>(item.regla)] + item.punto; }
    int longitud(int regla) const;
    void compruebaItem(Item item) const;
    void abre(const estadoAutomata& estado);
    void cierra(Simbolo variable, estadoAutomata& estado);
    bool aniadeNuevo(Item item, estadoAutomata& estado);
    void apila(estadoAutomata estado);
    std::span<const int> nucleo(const EnLista& ficha) const {
        return std::span(nucleos_).subspan(ficha.inicio, ficha.largo);
    }
    void anota(const estadoAutomata& estado);
    void agrupa(Marco& marco);
    std::int16_t& grupoDe(Item item);
    void avanza();
    std::optional<std::int16_t> busca() const;
    static void fija(std::span<const std::int16_t> miembros, std::int16_t destino, estadoAutomata& estado);
    estadoAutomata creaEstado(const Nucleo& nucleo);

    const ReglasPartidas& reglas_;
    std::int16_t numEstados_ = 0;
    std::uint32_t reloj_ = 0; // ticks whenever a state is appended to the list
    std::vector<estadoAutomata> estados_;
    std::vector<EnLista> enLista_;       // parallel to `estados_`
    std::vector<int> nucleos_;           // the kernels one after another, each ascending
    std::vector<int> primerItem_;        // by rule: number of its item with dot 0
    std::vector<Poseedores> poseedores_; // by number of item
    std::vector<Posesion> posesiones_;
    std::vector<std::uint32_t> presentes_;     // by number of item: turn in which it was added
    std::vector<std::uint32_t> turnoCabeza_;   // by symbol: turn in which its rules were taken up …
    std::vector<int> siguienteRegla_;          // … and the next of them
    std::vector<std::int16_t> grupoDeSimbolo_; // by symbol, −1 outside `agrupa`
    Nucleo nucleo_;                            // what the search under way is for
    std::vector<Simbolo> pendientes_;
    std::uint32_t turno_ = 0;
    std::vector<Marco> pila_;
};

} // namespace norvik::inline v0_2::clasico
