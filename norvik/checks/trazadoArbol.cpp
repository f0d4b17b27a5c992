// SPDX-License-Identifier: MIT

// What has no children takes the next place to the right, and a parent stands over the middle between its
// first child and its last. One that is wider than what is below it moves its whole subtree to the right:
// that is noted at its root, and a second pass, from the root down, adds the notes up.
#include "norvik/checks/trazadoArbol.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

class Trazador {
public:
    Trazador(std::span<const NodoPorTrazar> nodos, int margen)
        : nodos_(nodos), margen_(margen), libre_(margen), cambios_(nodos.size()) {
        trazado_.sitios.resize(nodos.size());
    }

    TrazadoArbol traza() {
        for (std::size_t i = 0; i < nodos_.size(); ++i) nodos_[i].hijos == 0 ? ponHoja(i) : ponPadre(i);
        baja();
        trazado_.ancho = libre_;
        return std::move(trazado_);
    }

private:
    /// A subtree that no parent has yet.
    struct Suelto {
        std::size_t raiz = 0;
        int desde = 0; ///< its left edge
    };

    void ponHoja(std::size_t i) {
        trazado_.sitios[i].centro = libre_ + nodos_[i].ancho / 2;
        sueltos_.push_back({i, libre_});
        libre_ += nodos_[i].ancho + 2 * margen_;
    }

    void ponPadre(std::size_t i) {
        const auto suyos = std::span(sueltos_).last(nodos_[i].hijos);
        for (const Suelto& hijo : suyos) trazado_.sitios[hijo.raiz].padre = i;
        const int medio =
            (trazado_.sitios[suyos.front().raiz].centro + trazado_.sitios[suyos.back().raiz].centro) / 2;
        const int desde = suyos.front().desde;
        cambios_[i] = std::max(0, desde - (medio - nodos_[i].ancho / 2));
        trazado_.sitios[i].centro = medio + cambios_[i];
        libre_ =
            std::max(libre_ + cambios_[i], trazado_.sitios[i].centro + nodos_[i].ancho / 2 + 2 * margen_);
        sueltos_.resize(sueltos_.size() - nodos_[i].hijos);
        sueltos_.push_back({i, desde});
    }

    /// A node's own place has its own change in it already.
    void baja() {
        for (std::size_t i = nodos_.size(); i > 0; --i) {
            TrazadoArbol::Sitio& sitio = trazado_.sitios[i - 1];
            if (sitio.padre != TrazadoArbol::sinPadre) {
                sitio.nivel = trazado_.sitios[sitio.padre].nivel + 1;
                sitio.centro += cambios_[sitio.padre];
                cambios_[i - 1] += cambios_[sitio.padre];
            }
            trazado_.niveles = std::max(trazado_.niveles, sitio.nivel + 1);
        }
    }

    std::span<const NodoPorTrazar> nodos_;
    const int margen_;
    int libre_;
    std::vector<int> cambios_; // to the right, of what is below each node
    std::vector<Suelto> sueltos_;
    TrazadoArbol trazado_;
};

} // namespace

TrazadoArbol trazaArbol(std::span<const NodoPorTrazar> enPostorden, int margen) {
    return Trazador(enPostorden, margen).traza();
}

} // namespace norvik::inline v0_2
