// SPDX-License-Identifier: MIT

#include "historias.hpp"

#include "curas.hpp"

#include <chrono>
#include <cstdint>
#include <map>
#include <utility>

namespace norvik::taller {

namespace {

/// Of a quiet conflict only the actions are known: the first cell that has them is its own.
class CeldasPorAccion {
public:
    explicit CeldasPorAccion(const LenguajeEstudiado& lenguaje) : gramatica_(lenguaje.gramatica()) {
        for (const Conflicto& c : lenguaje.conflictos) filas_.try_emplace({c.regla, c.columna}, c.fila);
    }
    void ponEstado(HistoriaConflicto& historia) const {
        if (historia.estado != HistoriaConflicto::sinEstado || gramatica_ == nullptr) return;
        const auto columna = static_cast<std::int16_t>(gramatica_->tabla.codigo(historia.simbolo) + 1);
        const auto suya = filas_.find({historia.acciones[1].regla, columna});
        if (suya != filas_.end()) historia.estado = static_cast<std::int16_t>(suya->second - 1);
    }

private:
    const GramaticaLR* gramatica_;
    std::map<std::pair<std::int16_t, std::int16_t>, std::int16_t> filas_; ///< of a rule and a column
};

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
    limites.porConflicto = 500ms; // a person waits for it
    limites.cancelacion = parada;
    const CeldasPorAccion celdas(lenguaje);
    Contados contados;
    for (Hallazgo& hallazgo : conHistorias(lenguaje, limites)) {
        if (parada.stop_requested()) break;
        contados.push_back({std::move(hallazgo.historias), {}});
        Contado& suyo = contados.back();
        for (HistoriaConflicto& historia : suyo.historias) celdas.ponEstado(historia);
        if (!suyo.historias.empty()) suyo.curas = curasDe(lenguaje, suyo.historias.front());
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
