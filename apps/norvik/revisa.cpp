// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "json.hpp"
#include "muestraError.hpp"
#include "sarif.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/historiaTexto.hpp"
#include "norvik/checks/revision.hpp"

#include <algorithm>

namespace norvik::orden {

namespace {

bool esGrave(const Diagnostico& hallazgo, bool estricto) {
    return hallazgo.gravedad == Gravedad::Error || (estricto && hallazgo.gravedad == Gravedad::Aviso);
}

// For a person: each finding at its place, a conflict with its story unless the one before has told it.
class Relato {
public:
    explicit Relato(Salida& salida)
        : salida_(salida), estilo_(salida.conColor() ? Estilo::EnColor : Estilo::Liso) {}

    void cuenta(const Hallazgo& hallazgo, std::u16string_view fichero, std::u16string_view texto) {
        salida_.escribePintado(aUtf8(muestraError(hallazgo.diagnostico, fichero, texto, estilo_)) + "\n");
        for (const HistoriaConflicto& historia : hallazgo.historias) {
            if (contada_ != nullptr && seCuentanIgual(*contada_, historia))
                salida_.escribe("  Se cuenta como el anterior.\n");
            else
                salida_.escribe(aUtf8(enTexto(historia)));
            contada_ = &historia;
        }
    }

private:
    Salida& salida_;
    Estilo estilo_;
    const HistoriaConflicto* contada_ = nullptr; // the last
};

} // namespace

int ejecuta(const Revisa& orden, Salida& salida) {
    std::vector<Revisado> revisados;
    std::vector<std::u16string> textos;
    for (const auto& especificacion : orden.especificaciones) {
        textos.push_back(leeTextoDe(especificacion));
        revisados.push_back(
            {nombreDeFichero(especificacion), revisaConHistorias(textos.back(), {orden.metodo})});
    }
    if (orden.formato == FormatoRevision::Sarif) escribeSarif(revisados, salida);
    bool hayGraves = false;
    Relato relato(salida);
    for (std::size_t i = 0; i < revisados.size(); ++i)
        for (const Hallazgo& hallazgo : revisados[i].hallazgos) {
            hayGraves = hayGraves || esGrave(hallazgo.diagnostico, orden.estricto);
            if (orden.formato == FormatoRevision::Json)
                escribeJson(hallazgo, revisados[i].fichero, salida);
            else if (orden.formato == FormatoRevision::Texto)
                relato.cuenta(hallazgo, revisados[i].fichero, textos[i]);
        }
    return hayGraves ? 1 : 0;
}

} // namespace norvik::orden
