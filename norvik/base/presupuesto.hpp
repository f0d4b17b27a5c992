// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"

#include <chrono>
#include <cstddef>
#include <stop_token>
#include <utility>

namespace norvik::inline v0_2 {

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
        if (cancelado()) throw OperacionCancelada();
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
    Gasto(const Presupuesto& presupuesto, Cabida& cabida) : presupuesto_(&presupuesto), cabida_(&cabida) {}

    Cabida& cabida() { return *cabida_; }
    /// Takes room for what cannot be done without. Raises `BusquedaDesbocada` when there is none.
    void ocupa(std::size_t bytes) {
        if (!cabida_->toma(bytes)) throw BusquedaDesbocada();
    }

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
    std::size_t pasos_ = 0;
};

} // namespace norvik::inline v0_2
