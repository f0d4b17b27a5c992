// SPDX-License-Identifier: MIT

// The sets that \d, \w and \s name, and the letters, by Unicode's categories.
#include "norvik/pattern/patronClase.hpp"

#include "norvik/pattern/tablaUnicode.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

std::vector<RangoUnidades> reune(std::initializer_list<std::span<const RangoUnidades>> tablas) {
    std::vector<RangoUnidades> rangos;
    for (const auto tabla : tablas) rangos.insert(rangos.end(), tabla.begin(), tabla.end());
    return ClaseUnidades(std::move(rangos)).rangos();
}

// Besides letters and numbers.
constexpr auto deUnaPalabra = std::to_array<RangoUnidades>({{u'_', u'_'}});
// Controls that move on, and a separator of old that Unicode has since made a format character.
constexpr auto otrosEspacios =
    std::to_array<RangoUnidades>({{u'\t', u'\r'}, {u'\u0085', u'\u0085'}, {u'\u180E', u'\u180E'}});

} // namespace

std::span<const RangoUnidades> rangosDe(PropiedadDeUnidad propiedad) {
    switch (propiedad) {
    case PropiedadDeUnidad::Digito:
        return unicode::cifras;
    case PropiedadDeUnidad::Letra:
        return unicode::letras;
    case PropiedadDeUnidad::Palabra: {
        static const auto rangos =
            reune({unicode::letras, unicode::cifras, unicode::otrosNumeros, deUnaPalabra});
        return rangos;
    }
    case PropiedadDeUnidad::Espacio:
        break;
    }
    static const auto espacios = reune({unicode::espacios, otrosEspacios});
    return espacios;
}

bool tiene(PropiedadDeUnidad propiedad, char16_t unidad) {
    const auto rangos = rangosDe(propiedad);
    const auto siguiente =
        std::ranges::partition_point(rangos, [&](const RangoUnidades& r) { return r.hasta < unidad; });
    return siguiente != rangos.end() && siguiente->desde <= unidad;
}

bool esDePalabra(char16_t unidad) {
    static const ClaseUnidades palabra = [] {
        const auto rangos = rangosDe(PropiedadDeUnidad::Palabra);
        return ClaseUnidades({rangos.begin(), rangos.end()});
    }();
    return palabra.contiene(unidad);
}

} // namespace norvik::inline v0_2
