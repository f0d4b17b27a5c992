#include "norvik/pattern/mayusculas.hpp"
#include "norvik/pattern/pcre2.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <numeric>
#include <string>

using namespace norvik;

namespace {

// The library's own answer for every unit against every unit.
TEST(Mayusculas, ElPliegueEsLaRelacionDeLaBiblioteca) {
    std::u16string todas(65536, u'\0');
    std::iota(todas.begin(), todas.end(), u'\0');
    const DatosPcre datos(pcre2_match_data_create_16(1, nullptr));
    for (const char16_t unidad : todas) {
        const bool esAlfanumerica = unidad >= 128 || std::isalnum(unidad) != 0;
        const std::u16string patron = (esAlfanumerica ? u"" : u"\\") + std::u16string(1, unidad);
        const CodigoPcre codigo = compilaPcre(patron, PCRE2_CASELESS | PCRE2_UCP | PCRE2_NEVER_UTF);
        ASSERT_TRUE(codigo) << std::hex << unsigned{unidad};
        pcre2_jit_compile_16(codigo.get(), PCRE2_JIT_COMPLETE);
        std::u16string iguales;
        std::size_t desde = 0;
        while (pcre2_match_16(codigo.get(), unidadesPcre(todas), todas.size(), desde, 0, datos.get(),
                              nullptr) > 0) {
            iguales.push_back(todas[pcre2_get_ovector_pointer_16(datos.get())[0]]);
            desde = iguales.back() + 1U;
        }
        const std::u16string_view dichas = equivalentes(unidad);
        ASSERT_EQ(iguales, dichas.empty() ? std::u16string(1, unidad) : std::u16string(dichas))
            << std::hex << unsigned{unidad};
        ASSERT_NE(iguales.find(pliega(unidad)), std::u16string::npos) << std::hex << unsigned{unidad};
        for (const char16_t igual : iguales)
            ASSERT_EQ(pliega(igual), pliega(unidad)) << std::hex << unsigned{unidad};
    }
}

} // namespace
