// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/numeros.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace norvik::inline v0_2 {

/// The stack of automaton states of a parse, each with the line and column of the token then current.
class pilaSLR {
public:
    void PUSH(std::int16_t estado, std::int32_t linea, std::int32_t columna) {
        entradas_.push_back({linea, columna, estado});
    }
    /// Removes the top and returns its state; 0 from an empty stack.
    std::int16_t POP() {
        const std::int16_t estado = cima();
        POP(1);
        return estado;
    }
    /// Removes `veces` entries, or all when there are fewer.
    void POP(std::int16_t veces) {
        const auto n = std::max<std::ptrdiff_t>(veces, 0);
        if (n < std::ssize(entradas_))
            entradas_.erase(entradas_.end() - n, entradas_.end());
        else
            Vaciar();
    }
    /// State, line and column of the top, 0 when the stack is empty; line and column raise `Desbordamiento`.
    std::int16_t cima() const { return esVacia() ? std::int16_t{0} : entradas_.back().estado; }
    /// State of the entry below the top, 0 when there is none.
    std::int16_t debajo() const {
        return entradas_.size() < 2 ? std::int16_t{0} : entradas_[entradas_.size() - 2].estado;
    }
    std::int16_t cimaLineas() const { return esVacia() ? std::int16_t{0} : a16(entradas_.back().linea); }
    std::int16_t cimaColumnas() const { return esVacia() ? std::int16_t{0} : a16(entradas_.back().columna); }
    std::size_t altura() const { return entradas_.size(); }
    /// State of an entry, counted from the bottom, from 0.
    std::int16_t estado(std::size_t entrada) const { return entradas_[entrada].estado; }
    bool esVacia() const { return entradas_.empty(); }
    void Vaciar() { entradas_.clear(); }

private:
    struct Entrada {
        std::int32_t linea = 0;
        std::int32_t columna = 0;
        std::int16_t estado = 0;
    };

    std::vector<Entrada> entradas_;
};

} // namespace norvik::inline v0_2
