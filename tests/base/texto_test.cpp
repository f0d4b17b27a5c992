// SPDX-License-Identifier: MIT

#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

#include <gtest/gtest.h>

using namespace norvik;

namespace {

TEST(Texto, Utf8EsLaIdentidadEnTodoElRepertorio) {
    const std::u16string texto = u"aÑ\u07FF\u0800\uFFFD\U0001F600\U0010FFFF";
    EXPECT_EQ(desdeUtf8(aUtf8(texto)), texto);
}

TEST(Texto, RechazaUtf8MalFormado) {
    for (const std::string bytes : {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80",
                                    "\xC3", "\xF8\x88\x80\x80\x80", "a\xFF"})
        EXPECT_EQ(desdeUtf8(bytes), std::nullopt) << testing::PrintToString(bytes);
}

TEST(Texto, UnSustitutoSueltoSaleComoCaracterDeReemplazo) {
    EXPECT_EQ(aUtf8(std::u16string{u'a', 0xD800, u'b'}), "a\xEF\xBF\xBD"
                                                         "b");
}

TEST(Texto, Windows1252EsLaIdentidadEnLos256Bytes) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    EXPECT_EQ(aWindows1252(desdeWindows1252(bytes)), bytes);
    EXPECT_EQ(aWindows1252(u"\u0394"), std::nullopt);
}

TEST(Texto, RecortaSoloEspacios) {
    EXPECT_EQ(recorta(u"  \ta b  "), u"\ta b");
    EXPECT_EQ(recorta(u"   "), u"");
}

TEST(Texto, CambiaDeMayusculasPorUnicode) {
    EXPECT_EQ(aMayusculas(u"MiVar ñandú"), u"MIVAR ÑANDÚ");
    EXPECT_EQ(aMinusculas(u"WHILE Ñ"), u"while ñ");
}

TEST(Numeros, LoQueNoCabeDesborda) {
    EXPECT_EQ(a16(32767), 32767);
    EXPECT_EQ(a16(-32768), -32768);
    EXPECT_THROW(a16(32768), Desbordamiento);
    EXPECT_THROW(a16(std::size_t{1} << 40), Desbordamiento);
    EXPECT_THROW(a32(std::size_t{0xFFFFFFFF}), Desbordamiento);
}

} // namespace
