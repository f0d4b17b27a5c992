// SPDX-License-Identifier: MIT

#include "norvik/widget/buscadorDeFondo.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"

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

/// The thread before this one ends soon after it is asked to.
void BuscadorDeFondo::busca(const BusquedaDirecta& busqueda, std::u16string texto) {
    para();
    auto trabajo = [this, busqueda, texto = std::move(texto),
                    numero = numero_](const std::stop_token& parada) {
        sinFallos([&] {
            const Resultado resultado = hallado(busqueda, texto, parada);
            if (parada.stop_requested()) return;
            const auto entrega = [this, numero, resultado] {
                if (numero == numero_) emit acabado(resultado);
            };
            QMetaObject::invokeMethod(this, entrega, Qt::QueuedConnection);
        });
    };
    hilo_ = std::jthread(std::move(trabajo));
}

void BuscadorDeFondo::para() {
    ++numero_;
    hilo_ = {};
}

} // namespace norvik
