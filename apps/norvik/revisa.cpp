// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "json.hpp"
#include "muestraError.hpp"
#include "sarif.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/revision.hpp"

#include <algorithm>

namespace norvik::orden {

namespace {

bool esGrave(const Diagnostico& hallazgo, bool estricto) {
    return hallazgo.gravedad == Gravedad::Error || (estricto && hallazgo.gravedad == Gravedad::Aviso);
}

} // namespace

int ejecuta(const Revisa& orden, Salida& salida) {
    std::vector<Revisado> revisados;
    std::vector<std::u16string> textos;
    for (const auto& especificacion : orden.especificaciones) {
        textos.push_back(leeTextoDe(especificacion));
        revisados.push_back({nombreDeFichero(especificacion), revisa(textos.back(), {orden.metodo})});
    }
    if (orden.formato == FormatoRevision::Sarif) escribeSarif(revisados, salida);
    bool hayGraves = false;
    for (std::size_t i = 0; i < revisados.size(); ++i)
        for (const Diagnostico& hallazgo : revisados[i].hallazgos) {
            hayGraves = hayGraves || esGrave(hallazgo, orden.estricto);
            if (orden.formato == FormatoRevision::Json)
                escribeJson(hallazgo, revisados[i].fichero, salida);
            else if (orden.formato == FormatoRevision::Texto)
                salida.escribe(aUtf8(muestraError(hallazgo, revisados[i].fichero, textos[i])) + "\n");
        }
    return hayGraves ? 1 : 0;
}

} // namespace norvik::orden
