// SPDX-License-Identifier: MIT

// Letter case: which units agree when case is ignored.
//
// The relation is that of Unicode's simple case folding, closed: K, k and the Kelvin sign agree, so do the
// three sigmas. It is stored as a map from each unit to the first one of its set, written as runs of units
// that go up in step with their images, and unfolded by the compiler into one table.
#include "norvik/pattern/mayusculas.hpp"

#include "norvik/pattern/tablaUnicode.hpp"

#include <algorithm>
#include <cstdint>

namespace norvik::inline v0_2 {

namespace {

constexpr std::array<char16_t, 65536> despliega() {
    std::array<char16_t, 65536> imagenes{};
    for (std::uint32_t unidad = 0; unidad < imagenes.size(); ++unidad)
        imagenes[unidad] = static_cast<char16_t>(unidad);
    for (const TramoDeCaja& tramo : unicode::tramosDeCaja)
        for (std::uint32_t unidad = tramo.desde; unidad <= tramo.hasta; unidad += tramo.paso)
            imagenes[unidad] = static_cast<char16_t>(tramo.imagen + (unidad - tramo.desde));
    return imagenes;
}

constexpr std::array<char16_t, 65536> imagenes = despliega();

constexpr std::array<bool, 65536> acompaniadas() {
    std::array<bool, 65536> marcas{};
    for (const TramoDeCaja& tramo : unicode::tramosDeCaja)
        for (std::uint32_t unidad = tramo.desde; unidad <= tramo.hasta; unidad += tramo.paso)
            marcas[unidad] = marcas[imagenes[unidad]] = true;
    return marcas;
}

constexpr std::size_t cuenta(const std::array<bool, 65536>& marcas) {
    std::size_t numero = 0;
    for (const bool marca : marcas) numero += marca ? 1U : 0U;
    return numero;
}

// The units of sets of more than one.
constexpr std::size_t numAcompaniadas = cuenta(acompaniadas());
using Acompaniadas = std::array<char16_t, numAcompaniadas>;

constexpr Acompaniadas ordena() {
    const auto marcas = acompaniadas();
    Acompaniadas unidades{};
    std::size_t sitio = 0;
    for (std::uint32_t unidad = 0; unidad < marcas.size(); ++unidad)
        if (marcas[unidad]) unidades[sitio++] = static_cast<char16_t>(unidad);
    return unidades;
}

constexpr Acompaniadas enOrden = ordena();

// One set after another, by their first units. A set is gathered as a list: each unit knows the next one.
constexpr Acompaniadas reune() {
    std::array<char16_t, 65536> primera{};
    std::array<char16_t, 65536> siguiente{};
    for (std::size_t i = enOrden.size(); i-- > 0;) {
        siguiente[enOrden[i]] = primera[imagenes[enOrden[i]]];
        primera[imagenes[enOrden[i]]] = enOrden[i];
    }
    Acompaniadas unidades{};
    std::size_t sitio = 0;
    for (const char16_t cabeza : enOrden)
        if (imagenes[cabeza] == cabeza)
            for (char16_t unidad = cabeza; unidad != 0; unidad = siguiente[unidad])
                unidades[sitio++] = unidad;
    return unidades;
}

constexpr Acompaniadas porConjunto = reune();

} // namespace

constinit const std::array<char16_t, 65536> pliegues = imagenes;

std::u16string_view equivalentes(char16_t unidad) {
    const std::u16string_view todos(porConjunto.data(), porConjunto.size());
    const char16_t clave = pliega(unidad);
    const auto inicio = std::partition_point(todos.begin(), todos.end(),
                                             [clave](char16_t otra) { return pliega(otra) < clave; });
    const auto fin =
        std::partition_point(inicio, todos.end(), [clave](char16_t otra) { return pliega(otra) == clave; });
    return {inicio, fin};
}

std::u16string_view unidadesConPareja() {
    return {enOrden.data(), enOrden.size()};
}

} // namespace norvik::inline v0_2
