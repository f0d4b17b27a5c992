// SPDX-License-Identifier: MIT

#include "norvik/base/texto.hpp"
#include "norvik/pattern/mayusculas.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace norvik;

namespace {

TEST(Mayusculas, CoincidenLasQueSoloSeDistinguenEnLaCaja) {
    const std::pair<char16_t, std::u16string_view> filas[] = {{u'k', u"Kk\u212A"},
                                                              {u'ſ', u"Ssſ"},
                                                              {u'ñ', u"Ññ"},
                                                              {u'ß', u"ß\u1E9E"},
                                                              {u'µ', u"µΜμ"},
                                                              {u'ς', u"Σςσ"},
                                                              {u'ǅ', u"Ǆǅǆ"},
                                                              {u'İ', u""},
                                                              {u'ı', u""},
                                                              {u'ª', u""},
                                                              {u'1', u""},
                                                              {u'Ω', u"Ωω\u2126"},
                                                              {u'\u1C88', u"\u1C88\uA64A\uA64B"},
                                                              {u'\uFF41', u"\uFF21\uFF41"},
                                                              {char16_t{0xD801}, u""}};
    for (const auto& [unidad, iguales] : filas) EXPECT_EQ(equivalentes(unidad), iguales) << unsigned{unidad};
}

// Who has the C library's capital or small letter agrees with it, but for the letters i of Turkish, which
// have no fold.
TEST(Mayusculas, TodasSusParejasSonLasDeLaBiblioteca) {
    std::u16string conPareja;
    for (std::uint32_t codigo = 0; codigo < 0x10000; ++codigo) {
        const auto unidad = static_cast<char16_t>(codigo);
        const std::u16string_view iguales = equivalentes(unidad);
        for (const char16_t otra : iguales) ASSERT_EQ(pliega(otra), iguales.front()) << codigo;
        if (iguales.empty())
            ASSERT_EQ(pliega(unidad), unidad) << codigo;
        else
            conPareja.push_back(unidad);
        if (unidad == u'İ' || unidad == u'ı') continue;
        ASSERT_EQ(pliega(aMinusculas({&unidad, 1})[0]), pliega(unidad)) << codigo;
        ASSERT_EQ(pliega(aMayusculas({&unidad, 1})[0]), pliega(unidad)) << codigo;
    }
    EXPECT_EQ(unidadesConPareja(), conPareja);
}

TEST(Unicode, DiceQueEsPalabraCifraYEspacio) {
    struct Fila {
        char16_t unidad;
        bool letra, cifra, palabra, espacio;
    };
    const Fila filas[] = {{u'ñ', true, false, true, false},
                          {u'_', false, false, true, false},
                          {u'٣', false, true, true, false},
                          {u'²', false, false, true, false},
                          {u'Ⅷ', false, false, true, false},
                          {u'\u0301', false, false, false, false},
                          {u'\u3000', false, false, false, true},
                          {u'\v', false, false, false, true},
                          {u'\u0085', false, false, false, true},
                          {u'\u180E', false, false, false, true},
                          {u'\u200B', false, false, false, false},
                          {u'中', true, false, true, false},
                          {char16_t{0xD800}, false, false, false, false},
                          {u'-', false, false, false, false}};
    for (const auto& [unidad, letra, cifra, palabra, espacio] : filas) {
        EXPECT_EQ(tiene(PropiedadDeUnidad::Letra, unidad), letra) << unsigned{unidad};
        EXPECT_EQ(tiene(PropiedadDeUnidad::Digito, unidad), cifra) << unsigned{unidad};
        EXPECT_EQ(tiene(PropiedadDeUnidad::Palabra, unidad), palabra) << unsigned{unidad};
        EXPECT_EQ(esDePalabra(unidad), palabra) << unsigned{unidad};
        EXPECT_EQ(tiene(PropiedadDeUnidad::Espacio, unidad), espacio) << unsigned{unidad};
    }
}

} // namespace
