// The sets that \d, \w and \s name, and the letters, are those of the PCRE2 library: each is found at its
// first use by one search over all units, so that what we compute ourselves and what the library computes
// cannot differ.
#include "norvik/pattern/patronClase.hpp"

#include "norvik/pattern/pcre2.hpp"

#include <array>
#include <string>

namespace norvik {

namespace {

std::vector<RangoUnidades> busca(std::u16string_view patron) {
    std::u16string todas;
    for (std::uint32_t unidad = 0; unidad < 0x10000; ++unidad) todas.push_back(static_cast<char16_t>(unidad));
    const CodigoPcre codigo = compilaPcre(patron, PCRE2_UCP | PCRE2_NEVER_UTF);
    const DatosPcre datos(pcre2_match_data_create_16(1, nullptr));
    std::vector<RangoUnidades> rangos;
    std::size_t desde = 0;
    while (pcre2_match_16(codigo.get(), unidadesPcre(todas), todas.size(), desde, 0, datos.get(), nullptr) >
           0) {
        const PCRE2_SIZE* limites = pcre2_get_ovector_pointer_16(datos.get());
        rangos.push_back({static_cast<char16_t>(limites[0]), static_cast<char16_t>(limites[1] - 1)});
        desde = limites[1];
    }
    return rangos;
}

} // namespace

const std::vector<RangoUnidades>& rangosDe(Propiedad propiedad) {
    switch (propiedad) {
    case Propiedad::Digito: {
        static const auto rangos = busca(u"\\d+");
        return rangos;
    }
    case Propiedad::Palabra: {
        static const auto rangos = busca(u"\\w+");
        return rangos;
    }
    case Propiedad::Espacio: {
        static const auto rangos = busca(u"\\s+");
        return rangos;
    }
    case Propiedad::Letra:
        break;
    }
    static const auto letras = busca(u"\\p{L}+");
    return letras;
}

} // namespace norvik
