// SPDX-License-Identifier: MIT

#include "norvik/widget/buscadorDeFondo.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"

#include <optional>
#include <stop_token>
#include <utility>

namespace norvik {

namespace {

BuscadorDeFondo::Resultado hallado(const BusquedaDirecta& busqueda, std::u16string_view texto,
                                   const std::stop_token& parada) {
    BuscadorDeFondo::Resultado resultado;
    const std::u16string fallo = falloDe([&] {
        try {
            auto halladas = coincidenciasDe(busqueda, texto, parada);
            if (halladas)
                resultado.halladas = std::move(*halladas);
            else
                resultado.fallo = QStringLiteral("Expresión incorrecta");
        } catch (const BusquedaDesbocada&) {
            resultado.fallo = QStringLiteral("Tarda demasiado");
        }
    });
    if (!fallo.empty()) resultado.fallo = aQString(fallo);
    return resultado;
}

} // namespace

void BuscadorDeFondo::busca(const BusquedaDirecta& busqueda, std::u16string texto) {
    para();
    trabajo_.empieza([busqueda, texto = std::move(texto)](
                         const std::stop_token& parada) { return hallado(busqueda, texto, parada); },
                     [this](const std::optional<Resultado>& resultado) {
                         if (resultado) emit acabado(*resultado);
                     });
}

} // namespace norvik
