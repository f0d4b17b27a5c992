// SPDX-License-Identifier: MIT

#include "historias.hpp"

#include <chrono>
#include <utility>

namespace norvik::taller {

void Historias::pon(const std::shared_ptr<const LenguajeEstudiado>& lenguaje) {
    if (lenguaje == lenguaje_) return;
    trabajo_.para();
    lenguaje_ = lenguaje;
    hallazgos_.clear();
}

const std::vector<HistoriaConflicto>* Historias::de(std::size_t diagnostico) {
    if (diagnostico < hallazgos_.size()) return &hallazgos_[diagnostico].historias;
    empieza();
    return nullptr;
}

void Historias::empieza() {
    using namespace std::chrono_literals;
    if (!lenguaje_ || trabajo_.trabaja() || !hallazgos_.empty()) return;
    trabajo_.empieza(
        [lenguaje = lenguaje_](const std::stop_token& parada) {
            LimitesHistorias limites;
            limites.porConflicto = 500ms;
            limites.enTotal = 3'000ms; // a person waits for it
            limites.cancelacion = parada;
            return conHistorias(*lenguaje, limites);
        },
        [this](std::optional<std::vector<Hallazgo>> hallazgos) {
            if (!hallazgos) return;
            hallazgos_ = std::move(*hallazgos);
            emit contadas();
        });
}

} // namespace norvik::taller
