// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

namespace norvik {

/// A rule (1-based) and the number of its body's symbols before the dot.
struct Item {
    std::int16_t regla = 0;
    std::int16_t punto = 0;

    bool operator==(const Item&) const = default;
};

/// Pairs (rule, dot) that a transition leads to.
using Nucleo = std::vector<Item>;

/// A state of the automaton: a list of distinct items, each with the state reached over its next symbol.
class estadoAutomata {
public:
    static constexpr std::int16_t maximoItems = 1000;
    static constexpr std::int16_t sinTransicion = -1; ///< the dot is at the end
    static constexpr std::int16_t sinCalcular = -2;   ///< there is a next symbol, its target is not known yet

    void copia(const estadoAutomata& otro) { *this = otro; }
    bool esFinal() const { return final_; }
    bool esInicial() const { return inicial_; }
    /// Items are 1-based, 1..1000; unused ones read 0, others raise `SubindiceFueraDeIntervalo`.
    std::int16_t getEstadoAdyacente(std::int16_t item) const;
    std::int16_t getNumEstado() const { return numEstado_; }
    /// Number of items.
    std::int16_t getNumReglas() const { return static_cast<std::int16_t>(items_.size()); }
    std::int16_t getPosicionPunto(std::int16_t item) const;
    std::int16_t getReglaEstado(std::int16_t item) const;
    void Inicializa() { *this = estadoAutomata(); }
    /// True when every pair of the kernel is an item.
    bool poseeConjuntoEstados(const Nucleo& nucleo) const;
    bool poseeRegla(std::int16_t regla, std::int16_t punto) const;
    void setFinal() { final_ = true; }
    void setInicial() { inicial_ = true; }
    void setNumEstado(std::int16_t numero) { numEstado_ = numero; }
    /// Appends an item unless it is present; rule 0 marks the state as initial.
    /// Raises `SubindiceFueraDeIntervalo` at item 1001.
    void SetRegla(std::int16_t regla, std::int16_t punto, bool pendiente);
    /// Gives the target to the items from which the kernel's pairs come.
    void setTransicion(const Nucleo& nucleo, std::int16_t destino);
    void setTransicionIndividual(std::int16_t item, std::int16_t destino);

    /// Appends an item that is known to be absent.
    void aniade(Item item, bool pendiente);
    const std::vector<Item>& items() const { return items_; }
    /// Transitions, item by item.
    const std::vector<std::int16_t>& adyacentes() const { return adyacentes_; }

private:
    std::int16_t numEstado_ = -1;
    bool inicial_ = false;
    bool final_ = false;
    std::vector<Item> items_;
    std::vector<std::int16_t> adyacentes_;
};

} // namespace norvik
