// The lists of snapshots: long ones, and emptying them.
#include "apoyo/anfitrion.hpp"
#include "norvik/control/historial.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace norvik;
using namespace norvik::apoyo;

TEST(Instantaneas, SeLeenEnteras) {
    std::mt19937 azar(3);
    std::vector<UndoElement> modelo;
    Instantaneas lista;
    std::u16string texto;
    for (int i = 0; i < 700; ++i) {
        if (azar() % 3 == 0 && modelo.size() > 1) {
            EXPECT_EQ(lista.saca(), modelo.back());
            modelo.pop_back();
            texto = modelo.back().Text;
            EXPECT_EQ(lista.ultima(), modelo.back());
            continue;
        }
        const std::size_t donde = azar() % (texto.size() + 1);
        texto.replace(donde, azar() % 300,
                      std::u16string(azar() % 400, static_cast<char16_t>(u'a' + azar() % 3)));
        modelo.push_back({i, static_cast<std::int32_t>(texto.size()), texto, i % 7 == 0});
        lista.pon(modelo.back());
    }
    ASSERT_EQ(lista.cuantas(), modelo.size());
    for (std::size_t i = 1; i <= modelo.size(); ++i) ASSERT_EQ(lista.en(i), modelo[i - 1]) << i;
    lista.vacia();
    EXPECT_EQ(lista.cuantas(), 0U);
}

TEST(Instantaneas, TextoDiferencia) {
    const struct {
        std::u16string_view a, b;
        std::int32_t p;
        std::u16string_view diferencia;
    } casos[] = {{u"abcd", u"ad", 4, u"bc"}, {u"ad", u"abcd", 4, u"bc"}, {u"abcd", u"ad", 2, u"abcd"},
                 {u"abcd", u"ad", 5, u"cd"}, {u"abcd", u"ad", 6, u"d"},  {u"abcd", u"ad", 9, u""},
                 {u"ab", u"cd", 1, u""},     {u"ab", u"cd", 0, u"cd"},   {u"", u"", 1, u""}};
    for (const auto& c : casos) EXPECT_EQ(textoDiferencia(c.a, c.b, c.p), c.diferencia) << c.p;
}

TEST(Historial, MasDe32767Cambios) {
    Anfitrion a;
    for (int i = 0; i < 32767; ++i)
        a.norvik.SelText(i % 2 == 0 ? u"a" : u"b"), a.norvik.SelStart(0), a.norvik.SelLength(1);
    EXPECT_NO_THROW(a.norvik.InicializaUndosYRedos());
    for (int i = 0; i < 32768; ++i) a.norvik.SelText(u"a"), a.norvik.SelStart(0), a.norvik.SelLength(1);
    EXPECT_THROW(a.norvik.BorraTodo(), Desbordamiento);
    EXPECT_EQ(a.norvik.Text(), u"");
    a.norvik.SelText(u"x");
    a.norvik.SelText(u"y");
    a.norvik.Undo();
    EXPECT_EQ(a.norvik.Text(), u"x");
    EXPECT_NO_THROW(a.norvik.BorraTodo());
}
