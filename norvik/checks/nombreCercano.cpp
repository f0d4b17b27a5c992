// SPDX-License-Identifier: MIT

// The distance is Damerau's in its restricted form (optimal string alignment): three rows of the usual table.
// Names whose lengths differ too much are not compared.
#include "norvik/checks/nombreCercano.hpp"

#include "norvik/base/presupuesto.hpp"
#include "norvik/pattern/mayusculas.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

std::size_t distancia(std::u16string_view a, std::u16string_view b) {
    std::array<std::vector<std::size_t>, 3> filas;
    for (auto& fila : filas) fila.resize(b.size() + 1);
    auto& [antepenultima, anterior, actual] = filas;
    std::iota(anterior.begin(), anterior.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        actual[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const bool iguales = pliega(a[i - 1]) == pliega(b[j - 1]);
            actual[j] = std::min({anterior[j] + 1, actual[j - 1] + 1, anterior[j - 1] + (iguales ? 0U : 1U)});
            const bool cruzadas = i > 1 && j > 1 && pliega(a[i - 1]) == pliega(b[j - 2]) &&
                                  pliega(a[i - 2]) == pliega(b[j - 1]);
            if (cruzadas) actual[j] = std::min(actual[j], antepenultima[j - 2] + 1);
        }
        antepenultima.swap(anterior);
        anterior.swap(actual);
    }
    return anterior[b.size()];
}

} // namespace

std::u16string nombreCercano(std::u16string_view nombre, const std::vector<std::u16string>& conocidos) {
    std::size_t minima = std::min<std::size_t>(3, std::max<std::size_t>(1, nombre.size() / 3)) + 1;
    std::u16string_view cercano;
    for (const std::u16string& conocido : conocidos) {
        const auto [corto, largo] = std::minmax({nombre.size(), conocido.size()});
        if (largo - corto >= minima) continue;
        const std::size_t suya = distancia(nombre, conocido);
        if (suya >= minima) continue;
        minima = suya;
        cercano = conocido;
    }
    return std::u16string(cercano);
}

NombresConocidos::NombresConocidos(std::vector<std::u16string> nombres, std::stop_token parada)
    : nombres_(std::move(nombres)), parada_(std::move(parada)) {}

std::u16string NombresConocidos::cercanoA(std::u16string_view nombre) {
    exigeSeguir(parada_);
    return pedidos_++ < maximo ? nombreCercano(nombre, nombres_) : std::u16string();
}

} // namespace norvik::inline v0_2
