// SPDX-License-Identifier: MIT

#include "norvik/checks/revision.hpp"

#include "norvik/checks/contrasteClasico.hpp"
#include "norvik/checks/cuentaConflictos.hpp"
#include "norvik/checks/revisada.hpp"
#include "norvik/grammar/gramatica.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

// The stories of a table's conflicts go to their diagnostics one by one: both are in the order of its cells.
void reparte(std::vector<Hallazgo>& hallazgos, Codigo codigo,
             std::vector<std::vector<HistoriaConflicto>> historias) {
    const auto esSuyo = [&](const Hallazgo& h) { return h.diagnostico.codigo == codigo; };
    if (static_cast<std::size_t>(std::ranges::count_if(hallazgos, esSuyo)) != historias.size()) return;
    std::size_t siguiente = 0;
    for (Hallazgo& hallazgo : hallazgos)
        if (esSuyo(hallazgo)) hallazgo.historias = std::move(historias[siguiente++]);
}

std::vector<std::vector<HistoriaConflicto>> porCelda(std::vector<HistoriaConflicto> historias) {
    std::vector<std::vector<HistoriaConflicto>> celdas;
    for (HistoriaConflicto& historia : historias) {
        const bool esDeLaMisma = !celdas.empty() && celdas.back().back().estado == historia.estado &&
                                 celdas.back().back().simbolo == historia.simbolo;
        if (!esDeLaMisma) celdas.emplace_back();
        celdas.back().push_back(std::move(historia));
    }
    return celdas;
}

void cuenta(const gramatica& g, const OpcionesTabla& opciones, const LimitesHistorias& limites,
            std::vector<Hallazgo>& hallazgos) {
    if (opciones.metodo != Metodo::Clasico) {
        reparte(hallazgos, Codigo::Conflicto,
                porCelda(cuentaConflictos(g.valores(), opciones, g.valores().tabla, limites)));
        return;
    }
    ConflictosClasicos conflictos = cuentaConflictosClasicos(g.valores(), limites);
    std::vector<std::vector<HistoriaConflicto>> callados; // one each
    for (HistoriaConflicto& historia : conflictos.callados) callados.push_back({std::move(historia)});
    reparte(hallazgos, Codigo::ConflictoCallado, std::move(callados));
    reparte(hallazgos, Codigo::Conflicto, std::move(conflictos.apuntados));
}

} // namespace

std::vector<Diagnostico> revisa(std::u16string_view especificacion, const OpcionesCompilacion& opciones) {
    std::vector<Diagnostico> hallazgos = revisada(especificacion, opciones).hallazgos;
    ordena(hallazgos);
    return hallazgos;
}

std::vector<Hallazgo> revisaConHistorias(std::u16string_view especificacion,
                                         const OpcionesCompilacion& opciones,
                                         const LimitesHistorias& limites) {
    LimitesHistorias suyos = limites;
    if (!suyos.cancelacion.stop_possible()) suyos.cancelacion = opciones.cancelacion;
    return conHistorias(revisada(especificacion, opciones), suyos);
}

std::vector<Hallazgo> conHistorias(const Revisada& revision, const LimitesHistorias& limites) {
    std::vector<Hallazgo> hallazgos;
    for (const Diagnostico& diagnostico : revision.hallazgos) hallazgos.push_back({diagnostico, {}});
    if (const gramatica* g = revision.laGramatica())
        cuenta(*g, revision.directivas.tabla, limites, hallazgos);
    std::ranges::stable_sort(hallazgos, {},
                             [](const Hallazgo& h) { return h.diagnostico.rango.inicio.desplazamiento; });
    return hallazgos;
}

} // namespace norvik::inline v0_2
