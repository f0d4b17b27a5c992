// SPDX-License-Identifier: MIT

// Both are walked from state 0 in step: where one leads to a state, that state has to be the same one of the
// other each time that it is met.
#include "norvik/checks/mismaTabla.hpp"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

bool llevaAUnEstado(std::int16_t entrada) {
    return entrada > 0 && entrada < TablaLR::aceptar;
}

} // namespace

bool esLaMismaTabla(const TablaLR& una, const TablaLR& otra) {
    const int columnas = una.simbolos().todos.totalElementos();
    if (otra.simbolos().todos.totalElementos() != columnas) return false;
    std::vector<std::int16_t> codigos; // of the other, by those of the one
    for (int codigo = 0; codigo < columnas; ++codigo) {
        codigos.push_back(otra.codigo(una.simbolo(static_cast<std::int16_t>(codigo + 1))));
        if (codigos.back() < 0) return false;
    }
    constexpr std::int16_t ninguno = -1;
    // The states of the other, by those of the one.
    std::vector<std::int16_t> suyos(TablaLR::aceptar, ninguno);
    std::vector<std::int16_t> porVer{0};
    suyos[0] = 0;
    while (!porVer.empty()) {
        const std::int16_t estado = porVer.back();
        porVer.pop_back();
        for (std::size_t c = 0; c < codigos.size(); ++c) {
            const std::int16_t entrada = una.entrada(estado, static_cast<std::int16_t>(c));
            const std::int16_t suya = otra.entrada(suyos[static_cast<std::size_t>(estado)], codigos[c]);
            if (!llevaAUnEstado(entrada)) {
                if (suya != entrada) return false;
                continue;
            }
            std::int16_t& conocido = suyos[static_cast<std::size_t>(entrada)];
            if (!llevaAUnEstado(suya) || (conocido != ninguno && conocido != suya)) return false;
            if (std::exchange(conocido, suya) == ninguno) porVer.push_back(entrada);
        }
    }
    return true;
}

} // namespace norvik::inline v0_2
