// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"

#include <chrono>
#include <cstddef>
#include <stop_token>
#include <utility>

namespace norvik {

/// What a whole operation (a recognition, a search, a parse) may spend: time, and as long as nobody cancels
/// it.
class Presupuesto {
public:
    explicit Presupuesto(std::chrono::microseconds plazo = std::chrono::milliseconds(3000),
                         std::stop_token parada = {})
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

/// Counts work against a budget, which outlives it, and asks it now and then: the clock costs as much as a
/// token.
class Gasto {
public:
    explicit Gasto(const Presupuesto& presupuesto) : presupuesto_(&presupuesto) {}

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
    std::size_t pasos_ = 0;
};

} // namespace norvik
