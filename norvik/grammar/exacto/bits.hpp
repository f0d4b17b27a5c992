// SPDX-License-Identifier: MIT

#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace norvik::inline v0_2::exacto {

/// A set of small numbers.
class Bits {
public:
    Bits() = default;
    explicit Bits(std::size_t cuantos) : palabras_((cuantos + 63) / 64) {}

    /// One as large, with nothing in it.
    Bits vacioIgual() const { return Bits(palabras_.size() * 64); }
    bool operator==(const Bits&) const = default;
    bool operator<(const Bits& otro) const { return palabras_ < otro.palabras_; }

    bool contiene(std::size_t i) const { return (palabras_[i / 64] >> i % 64 & 1) != 0; }
    /// Says whether it is new.
    bool inserta(std::size_t i) {
        const bool nuevo = !contiene(i);
        palabras_[i / 64] |= std::uint64_t{1} << i % 64;
        return nuevo;
    }
    /// Adds another set, no larger than this one; says whether something was new.
    bool une(const Bits& otro) {
        std::uint64_t nuevos = 0;
        for (std::size_t i = 0; i < otro.palabras_.size(); ++i) {
            nuevos |= otro.palabras_[i] & ~palabras_[i];
            palabras_[i] |= otro.palabras_[i];
        }
        return nuevos != 0;
    }
    bool tieneAlgunoDe(const Bits& otro) const {
        for (std::size_t i = 0; i < palabras_.size(); ++i)
            if ((palabras_[i] & otro.palabras_[i]) != 0) return true;
        return false;
    }
    /// Calls with each member, in ascending order.
    template <typename Accion>
    void paraCada(const Accion& accion) const {
        for (std::size_t i = 0; i < palabras_.size(); ++i)
            for (std::uint64_t quedan = palabras_[i]; quedan != 0; quedan &= quedan - 1)
                accion(i * 64 + static_cast<std::size_t>(std::countr_zero(quedan)));
    }

private:
    std::vector<std::uint64_t> palabras_;
};

} // namespace norvik::inline v0_2::exacto
