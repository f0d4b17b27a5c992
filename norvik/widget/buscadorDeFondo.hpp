// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/busquedaDirecta.hpp"
#include "norvik/widget/trabajoDeFondo.hpp"

#include <QObject>
#include <QString>

#include <string>
#include <vector>

namespace norvik {

/// Searches in a thread of its own, so that no key waits for a long text or a pattern that runs away.
class BuscadorDeFondo final : public QObject {
    Q_OBJECT

public:
    struct Resultado {
        std::vector<Coincidencia> halladas;
        QString fallo; ///< why there is none; empty when it was searched
    };

    /// Gives up the search before this one, which is over without a result. Raises what a system does that
    /// has no thread left.
    void busca(const BusquedaDirecta& busqueda, std::u16string texto);
    void para() { trabajo_.para(); }

signals:
    void acabado(const norvik::BuscadorDeFondo::Resultado& resultado);

private:
    TrabajoDeFondo<Resultado> trabajo_;
};

} // namespace norvik
