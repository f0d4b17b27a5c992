// SPDX-License-Identifier: MIT

#include "dibujoAnalisis.hpp"

#include <deque>
#include <set>
#include <utility>
#include <vector>

namespace norvik::taller {

namespace {

/// The rows whose children are drawn, too: level by level, as long as there is room.
std::set<quintptr> abiertas(const ModeloAnalisis& modelo, std::size_t maximo) {
    std::set<quintptr> suyas;
    std::deque<QModelIndex> pendientes{modelo.index(0, 0)};
    for (std::size_t filas = 1; !pendientes.empty(); pendientes.pop_front()) {
        const QModelIndex fila = pendientes.front();
        const int hijos = modelo.rowCount(fila);
        if (hijos == 0 || filas + static_cast<std::size_t>(hijos) > maximo) continue;
        filas += static_cast<std::size_t>(hijos);
        suyas.insert(fila.internalId());
        for (int i = 0; i < hijos; ++i) pendientes.push_back(modelo.index(i, 0, fila));
    }
    return suyas;
}

class DibujanteAnalisis {
public:
    DibujanteAnalisis(const ModeloAnalisis& modelo, std::size_t maximo)
        : modelo_(modelo), abiertas_(norvik::taller::abiertas(modelo, maximo)) {}

    DibujoAnalisis dibuja() {
        std::vector<std::pair<QModelIndex, int>> camino; // row, next child
        if (modelo_.rowCount() > 0) camino.emplace_back(modelo_.index(0, 0), 0);
        while (!camino.empty()) {
            auto& [fila, siguiente] = camino.back();
            if (siguiente < hijosDe(fila)) {
                const QModelIndex hijo = modelo_.index(siguiente++, 0, fila);
                camino.emplace_back(hijo, 0);
                continue;
            }
            anota(fila);
            camino.pop_back();
        }
        return std::move(dibujo_);
    }

private:
    int hijosDe(const QModelIndex& fila) const {
        return abiertas_.contains(fila.internalId()) ? modelo_.rowCount(fila) : 0;
    }

    void anota(const QModelIndex& fila) {
        QString rotulo = fila.data().toString();
        const int numero = static_cast<int>(modelo_.nodoDe(fila));
        const int hijos = hijosDe(fila);
        if (hijos > 0) return anota({rotulo, static_cast<std::size_t>(hijos), Clase::Variable, numero});
        const bool oculta = modelo_.rowCount(fila) > 0;
        const QString texto = fila.siblingAtColumn(ModeloAnalisis::Texto).data().toString();
        if (oculta) ++dibujo_.ocultos;
        const bool conTexto = !texto.isEmpty() && texto != rotulo;
        if (conTexto) anota({texto, 0, Clase::Texto, numero});
        if (oculta) rotulo += QStringLiteral(" …");
        anota({rotulo, conTexto ? std::size_t{1} : std::size_t{0}, oculta ? Clase::Variable : Clase::Token,
               numero});
    }
    void anota(NodoDibujado nodo) { dibujo_.arbol.push_back(std::move(nodo)); }

    using Clase = NodoDibujado::Clase;

    const ModeloAnalisis& modelo_;
    const std::set<quintptr> abiertas_;
    DibujoAnalisis dibujo_;
};

} // namespace

DibujoAnalisis dibujoDe(const ModeloAnalisis& modelo, std::size_t maximo) {
    return DibujanteAnalisis(modelo, maximo).dibuja();
}

} // namespace norvik::taller
