// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <stop_token>
#include <utility>

namespace norvik::inline v0_2 {

/// Raises `OperacionCancelada` when somebody has asked for the end.
inline void exigeSeguir(const std::stop_token& parada) {
    if (parada.stop_requested()) throw OperacionCancelada();
}

/// How long a whole operation (a recognition, a search, a parse) may take, and as long as nobody cancels it.
class Presupuesto {
public:
    static constexpr std::chrono::microseconds plazoComun = std::chrono::seconds(3);

    explicit Presupuesto(std::chrono::microseconds plazo = plazoComun, std::stop_token parada = {})
        : fin_(std::chrono::steady_clock::now() + plazo), parada_(std::move(parada)) {}

    bool agotado() const { return std::chrono::steady_clock::now() > fin_; }
    bool cancelado() const { return parada_.stop_requested(); }
    /// Raises `OperacionCancelada` when somebody has cancelled, `BusquedaDesbocada` when the time is spent.
    void exige() const {
        exigeSeguir(parada_);
        if (agotado()) throw BusquedaDesbocada();
    }

private:
    std::chrono::steady_clock::time_point fin_;
    std::stop_token parada_;
};

/// Room in memory for all that searchers keep together: whoever keeps something takes its bytes first.
class Cabida {
public:
    explicit Cabida(std::size_t bytes = std::size_t{256} << 20) : quedan_(bytes) {}

    /// False, and nothing taken, when there are not so many left.
    bool toma(std::size_t bytes) {
        if (bytes > quedan_) return false;
        quedan_ -= bytes;
        return true;
    }
    void devuelve(std::size_t bytes) { quedan_ += bytes; }

private:
    std::size_t quedan_;
};

/// Counts work against a budget and what is kept against a room, which both outlive it. The budget is asked
/// now and then: the clock costs as much as a token.
class Gasto {
public:
    /// Whether what is kept was all kept by this work, or earlier ones have left their own.
    enum class Comienzo : std::uint8_t { DeNuevo, ConLoGuardado };

    Gasto(const Presupuesto& presupuesto, Cabida& cabida, Comienzo comienzo = Comienzo::DeNuevo)
        : presupuesto_(&presupuesto), cabida_(&cabida), comienzo_(comienzo) {}

    Cabida& cabida() { return *cabida_; }
    /// Takes room for what cannot be done without. Raises `BusquedaDesbocada` when there is none.
    void ocupa(std::size_t bytes) {
        if (!cabida_->toma(bytes)) throw BusquedaDesbocada();
    }

    /// There is no room where earlier work has left something: whoever begins anew has more.
    struct LoGuardadoEstorba {};
    /// Something is not kept for want of room, and another way does. Raises `LoGuardadoEstorba`.
    void anotaFalta() {
        if (comienzo_ == Comienzo::ConLoGuardado) throw LoGuardadoEstorba();
        falta_ = true;
    }
    /// The same where nothing but time depends on it.
    void anotaDemora() { falta_ = true; }
    /// What was kept fills its room.
    bool estaLleno() const { return falta_; }

    /// Work just done or about to be done, in steps of some nanoseconds. Raises what `Presupuesto::exige`
    /// does.
    void anota(std::size_t pasos) {
        pasos_ += pasos;
        if (pasos_ < pasosPorConsulta) return;
        pasos_ = 0;
        presupuesto_->exige();
    }

private:
    static constexpr std::size_t pasosPorConsulta = std::size_t{1} << 16;

    const Presupuesto* presupuesto_;
    Cabida* cabida_;
    Comienzo comienzo_;
    bool falta_ = false;
    std::size_t pasos_ = 0;
};

} // namespace norvik::inline v0_2
