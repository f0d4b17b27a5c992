// SPDX-License-Identifier: MIT

#include "norvik/checks/pruebaTabla.hpp"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace norvik::inline v0_2 {

std::optional<ArbolEjemplo> arbolPorTabla(const TablaLR& tabla, const Reglas& reglas,
                                          const std::vector<std::u16string>& frase) {
    ArbolEjemplo arbol;
    std::vector<std::int16_t> pila{0};
    std::vector<std::int32_t> bosque;
    const auto pon = [&](std::u16string simbolo, std::int16_t regla, std::vector<std::int32_t> hijos) {
        arbol.nodos.push_back({std::move(simbolo), regla, std::move(hijos)});
        bosque.push_back(static_cast<std::int32_t>(arbol.nodos.size() - 1));
    };
    const std::size_t maximo = 1'000 + 200 * frase.size();
    std::size_t leidos = 0;
    for (std::size_t pasos = 0; pasos < maximo; ++pasos) {
        const std::int16_t columna = leidos < frase.size() ? tabla.codigo(frase[leidos]) : tabla.codigoFin();
        if (columna < 0) return std::nullopt;
        const std::int16_t accion = tabla.entrada(pila.back(), columna);
        if (accion == 0) return std::nullopt;
        if (accion == TablaLR::aceptar) return bosque.size() == 1 ? std::optional(arbol) : std::nullopt;
        if (accion > 0) {
            pon(frase[leidos++], 0, {});
            pila.push_back(accion);
            continue;
        }
        const auto regla = static_cast<std::int16_t>(-accion);
        const auto largo = static_cast<std::size_t>(reglas.en(regla).elementos);
        if (largo > bosque.size()) return std::nullopt;
        const auto corte = bosque.end() - static_cast<std::ptrdiff_t>(largo);
        std::vector<std::int32_t> hijos(corte, bosque.end());
        bosque.erase(corte, bosque.end());
        pila.resize(pila.size() - largo);
        pon(reglas.en(regla).cabeza, regla, std::move(hijos));
        const std::int16_t cabeza = tabla.codigo(reglas.en(regla).cabeza);
        pila.push_back(cabeza < 0 ? std::int16_t{0} : tabla.entrada(pila.back(), cabeza));
        if (pila.back() <= 0 || pila.back() >= TablaLR::aceptar) return std::nullopt;
    }
    return std::nullopt;
}

} // namespace norvik::inline v0_2
