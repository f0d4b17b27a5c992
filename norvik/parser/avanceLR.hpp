// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/parser/lenguajeAnalisis.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace norvik::inline v0_2 {

/// A damaged table may go on reducing for ever.
constexpr std::size_t maximoReducciones = 100'000;

enum class Avance : std::uint8_t { Desplazado, Aceptado, Rechazado, SinFin };

/// Reduces a stack, which has `cima()`, `quita(n)` and `pon(estado)`, by a rule; false when the table has no
/// way on over its head. Raises `SubindiceFueraDeIntervalo`.
template <typename Pila>
bool reduce(Pila& pila, std::int16_t numRegla, const LenguajeAnalisis& lenguaje) {
    const auto regla = lenguaje.regla(numRegla);
    pila.quita(static_cast<std::size_t>(std::max<std::int16_t>(regla.numElementos, 0)));
    const std::int16_t estado = lenguaje.entrada(pila.cima(), regla.columnaCabeza);
    if (estado != 0) pila.pon(estado);
    return estado != 0;
}

/// Does with a stack what the table asks for at a token: its reductions, then the shift. A rejected token
/// leaves it somewhere between. `alReducir(regla)` is called for each reduction, of which there are `maximo`
/// at most; a damaged table rejects.
template <typename Pila, typename AlReducir>
Avance avanza(Pila& pila, std::int16_t columna, const LenguajeAnalisis& lenguaje, std::size_t maximo,
              const AlReducir& alReducir) {
    if (columna < 0) return Avance::Rechazado;
    try {
        for (std::size_t n = 0; n <= maximo; ++n) {
            const std::int16_t accion = lenguaje.entrada(pila.cima(), columna);
            if (accion == 0) return Avance::Rechazado;
            if (accion == gramatica::aceptar) return Avance::Aceptado;
            if (accion > 0) {
                pila.pon(accion);
                return Avance::Desplazado;
            }
            const auto numRegla = static_cast<std::int16_t>(-accion);
            if (!reduce(pila, numRegla, lenguaje)) return Avance::Rechazado;
            alReducir(numRegla);
        }
    } catch (const SubindiceFueraDeIntervalo&) {
        return Avance::Rechazado;
    }
    return Avance::SinFin;
}

/// A stack on trial: what is pushed stands apart, over as much of another stack as has not been popped.
class PilaEnsayo {
public:
    /// The states of the other stack, from the bottom, which stay as they are meanwhile.
    explicit PilaEnsayo(std::span<const std::int16_t> debajo) : debajo_(debajo) {}

    std::int16_t cima() const {
        if (!encima_.empty()) return encima_.back();
        return debajo_.empty() ? std::int16_t{0} : debajo_.back();
    }
    void quita(std::size_t cuantos) {
        const std::size_t deEncima = std::min(cuantos, encima_.size());
        encima_.resize(encima_.size() - deEncima);
        debajo_ = debajo_.first(debajo_.size() - std::min(debajo_.size(), cuantos - deEncima));
    }
    void pon(std::int16_t estado) { encima_.push_back(estado); }

    /// Begins again over a stack.
    void empieza(std::span<const std::int16_t> debajo) {
        debajo_ = debajo;
        encima_.clear();
    }
    /// Makes of the stack that it stands on what it is itself.
    void consuma(std::vector<std::int16_t>& pila) {
        pila.resize(debajo_.size());
        pila.insert(pila.end(), encima_.begin(), encima_.end());
    }

private:
    std::span<const std::int16_t> debajo_;
    std::vector<std::int16_t> encima_;
};

/// What a token comes to on a stack that stays as it is; the trial holds the stack behind it.
inline Avance ensaya(PilaEnsayo& ensayo, std::span<const std::int16_t> pila, std::int16_t columna,
                     const LenguajeAnalisis& lenguaje) {
    ensayo.empieza(pila);
    return avanza(ensayo, columna, lenguaje, maximoReducciones, [](std::int16_t /*regla*/) {});
}

} // namespace norvik::inline v0_2
