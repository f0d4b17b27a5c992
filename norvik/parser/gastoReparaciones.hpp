// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <stop_token>
#include <utility>

namespace norvik::inline v0_2 {

/// What all repairs of a text may spend. Steps end a search at the same point on any machine; the time is
/// there for one that is too slow for them.
class GastoReparaciones {
public:
    using Reloj = std::chrono::steady_clock;

    static constexpr std::size_t pasosPorTexto = 3'000'000;

    explicit GastoReparaciones(std::stop_token parada, std::size_t pasos = pasosPorTexto)
        : parada_(std::move(parada)), pasosDeTexto_(pasos) {}

    /// A search begins. Raises `OperacionCancelada`.
    void empieza() {
        if (parada_.stop_requested()) throw OperacionCancelada();
        quedan_ = std::min(pasosDeTexto_, pasosPorError);
        inicio_ = Reloj::now();
    }
    /// It ends.
    void acaba() { tiempo_ -= std::min<Reloj::duration>(tiempo_, Reloj::now() - inicio_); }
    /// Steps of some tens of nanoseconds; false when there are no more to spend. Raises
    /// `OperacionCancelada`.
    bool anota(std::size_t pasos) {
        const std::size_t tomados = std::min(pasos, quedan_);
        quedan_ -= tomados;
        pasosDeTexto_ -= tomados;
        sinConsultar_ += pasos;
        if (sinConsultar_ >= pasosPorConsulta) consulta();
        return quedan_ > 0;
    }
    /// So much is left that a search may take more than it needs.
    bool sobra() const { return quedan_ > 0 && pasosDeTexto_ > pasosPorTexto / 2; }
    bool agotado() const { return quedan_ == 0; }

private:
    static constexpr std::size_t pasosPorError = 400'000;
    static constexpr std::size_t pasosPorConsulta = 4096;
    static constexpr auto plazo = std::chrono::milliseconds(350);

    void consulta() {
        sinConsultar_ = 0;
        if (parada_.stop_requested()) throw OperacionCancelada();
        if (Reloj::now() - inicio_ > tiempo_) quedan_ = pasosDeTexto_ = 0;
    }

    std::stop_token parada_;
    Reloj::duration tiempo_ = plazo;
    Reloj::time_point inicio_;
    std::size_t pasosDeTexto_;
    std::size_t quedan_ = 0;
    std::size_t sinConsultar_ = 0;
};

} // namespace norvik::inline v0_2
