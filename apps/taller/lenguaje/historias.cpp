// SPDX-License-Identifier: MIT

#include "historias.hpp"

#include "curas.hpp"

#include <algorithm>
#include <chrono>
#include <utility>

namespace norvik::taller {

namespace {

/// Of a quiet conflict only the actions are known: the first cell that has them is its own.
void ponEstado(HistoriaConflicto& historia, const LenguajeEstudiado& lenguaje) {
    if (historia.estado != HistoriaConflicto::sinEstado || lenguaje.gramatica() == nullptr) return;
    const auto suyo = std::ranges::find_if(lenguaje.conflictos, [&](const Conflicto& c) {
        return c.regla == historia.acciones[1].regla &&
               lenguaje.gramatica()->tabla.simbolo(c.columna) == historia.simbolo;
    });
    if (suyo != lenguaje.conflictos.end()) historia.estado = static_cast<std::int16_t>(suyo->fila - 1);
}

} // namespace

void Historias::pon(const std::shared_ptr<const LenguajeEstudiado>& lenguaje) {
    if (lenguaje == lenguaje_) return;
    trabajo_.para();
    lenguaje_ = lenguaje;
    contados_.clear();
}

const std::vector<HistoriaConflicto>* Historias::de(std::size_t diagnostico) {
    if (diagnostico < contados_.size()) return &contados_[diagnostico].historias;
    empieza();
    return nullptr;
}

const std::vector<Arreglo>& Historias::curas(std::size_t diagnostico) const {
    static const std::vector<Arreglo> ninguna;
    return diagnostico < contados_.size() ? contados_[diagnostico].curas : ninguna;
}

Historias::Contados Historias::cuenta(const LenguajeEstudiado& lenguaje, const std::stop_token& parada) {
    using namespace std::chrono_literals;
    LimitesHistorias limites;
    limites.porConflicto = 500ms;
    limites.enTotal = 3'000ms; // a person waits for it
    limites.cancelacion = parada;
    Contados contados;
    for (Hallazgo& hallazgo : conHistorias(lenguaje, limites)) {
        contados.push_back({std::move(hallazgo.historias), {}});
        Contado& suyo = contados.back();
        for (HistoriaConflicto& historia : suyo.historias) ponEstado(historia, lenguaje);
        if (!suyo.historias.empty() && !parada.stop_requested())
            suyo.curas = curasDe(lenguaje, suyo.historias.front());
    }
    return contados;
}

void Historias::empieza() {
    if (!lenguaje_ || trabajo_.trabaja() || conocidas()) return;
    trabajo_.empieza(
        [lenguaje = lenguaje_](const std::stop_token& parada) { return cuenta(*lenguaje, parada); },
        [this](std::optional<Contados> contados) {
            contados_ = contados ? std::move(*contados) : Contados(lenguaje_->diagnosticos.size());
            emit contadas();
        });
}

} // namespace norvik::taller
