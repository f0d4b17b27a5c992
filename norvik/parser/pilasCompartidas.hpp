// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

namespace norvik::inline v0_2 {

/// Many stacks that grow from one. A stack is the number of its top, so that a push or a pop copies nothing
/// and two stacks with the same states are the same number. 0 is the empty stack, then come the states of the
/// first one from its bottom, then whatever is pushed.
class PilasCompartidas {
public:
    using Pila = std::uint32_t;

    /// The states of the first stack, from the bottom, which outlive the others.
    explicit PilasCompartidas(std::span<const std::int16_t> primera) : primera_(primera) {}

    Pila primera() const { return static_cast<Pila>(primera_.size()); }
    std::int16_t cima(Pila pila) const {
        if (pila == 0) return 0;
        return esDeLaPrimera(pila) ? primera_[pila - 1] : nodo(pila).estado;
    }
    Pila sin(Pila pila, std::size_t cuantos) const {
        for (; cuantos > 0 && !esDeLaPrimera(pila); --cuantos) pila = nodo(pila).debajo;
        return pila - static_cast<Pila>(std::min<std::size_t>(cuantos, pila));
    }
    Pila con(Pila pila, std::int16_t estado) {
        const std::uint64_t clave =
            (static_cast<std::uint64_t>(pila) << 16) | static_cast<std::uint16_t>(estado);
        const auto [sitio, nueva] = numeros_.try_emplace(clave, primera() + nodos_.size() + 1);
        if (nueva) nodos_.push_back({pila, estado});
        return sitio->second;
    }

    /// One of them, to be worked on.
    class Mano {
    public:
        Mano(PilasCompartidas& todas, Pila pila) : todas_(todas), pila_(pila) {}
        std::int16_t cima() const { return todas_.cima(pila_); }
        void quita(std::size_t cuantos) { pila_ = todas_.sin(pila_, cuantos); }
        void pon(std::int16_t estado) { pila_ = todas_.con(pila_, estado); }
        Pila pila() const { return pila_; }

    private:
        PilasCompartidas& todas_;
        Pila pila_;
    };

private:
    struct Nodo {
        Pila debajo = 0;
        std::int16_t estado = 0;
    };

    bool esDeLaPrimera(Pila pila) const { return pila <= primera_.size(); }
    const Nodo& nodo(Pila pila) const { return nodos_[pila - primera_.size() - 1]; }

    std::span<const std::int16_t> primera_;
    std::vector<Nodo> nodos_;
    std::unordered_map<std::uint64_t, Pila> numeros_;
};

} // namespace norvik::inline v0_2
