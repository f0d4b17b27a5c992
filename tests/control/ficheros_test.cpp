// The control's text: properties of the box, loading and saving.
#include "apoyo/anfitrion.hpp"
#include "apoyo/carpetaTemporal.hpp"
#include "norvik/base/errores.hpp"

#include <gtest/gtest.h>

using namespace norvik;
using namespace norvik::apoyo;

TEST(Texto, PropiedadesDeLaCaja) {
    Anfitrion a;
    int cambios = 0;
    const auto suyo = a.caja.eventos.cambio;
    a.caja.eventos.cambio = [&] {
        suyo();
        ++cambios;
    };
    a.norvik.Text(u"uno dos");
    a.norvik.Text(u"uno dos"); // the same text is not set again
    EXPECT_EQ(cambios, 1);
    a.norvik.SelStart(4);
    a.norvik.SelLength(3);
    EXPECT_EQ(a.norvik.SelText(), u"dos");
    a.norvik.SelText(u"tres");
    EXPECT_EQ(a.norvik.Text(), u"uno tres");
    EXPECT_EQ(a.norvik.SelStart(), 8);
    EXPECT_TRUE(a.norvik.TextoModificado());
    a.norvik.TextoModificado(false);
    a.norvik.TextoModificado(true);
    EXPECT_FALSE(a.norvik.TextoModificado());
    a.norvik.Text(std::u16string(40000, u'x'));
    a.caja.selecciona(1, 39000);
    EXPECT_EQ(a.norvik.SelStart(), 1);
    EXPECT_THROW(static_cast<void>(a.norvik.SelLength()), Desbordamiento);
}

TEST(Ficheros, CargarReemplazaYColorea) {
    const CarpetaTemporal carpeta;
    Anfitrion a;
    ASSERT_TRUE(a.compila(u"Token n = \"[0-9]+\", TipoToken = TTNumero; S -> n;"));
    a.norvik.Colorear(true);
    const struct {
        std::string_view bytes;
        std::u16string_view texto;
        std::string pintados;
    } casos[] = {{"", u"", ""},
                 {"12\n\n3\n", u"12\r\n\r\n3", "1100001"},
                 {"12\r\n\r\n3", u"12\r\n\r\n3", "1100001"},
                 {"\xF1 1\r", u"ñ 1", "001"},
                 {"\xC3\xB1 1", u"ñ 1", "001"}};
    for (const auto& c : casos) {
        a.norvik.Text(u"lo de antes");
        a.norvik.SelText(u"x");
        EXPECT_TRUE(a.norvik.CargarFichero(carpeta.pon("f.txt", c.bytes)));
        EXPECT_EQ(a.norvik.Text(), c.texto);
        EXPECT_EQ(a.pintados(), c.pintados);
        EXPECT_FALSE(a.norvik.TextoModificado());
        EXPECT_EQ(a.norvik.SelStart(), 0);
    }
    for (const auto& malo : {carpeta / "no.txt", carpeta.ruta()}) {
        a.norvik.Text(u"lo de antes");
        EXPECT_THROW(a.norvik.CargarFichero(malo), ErrorDeFichero);
        EXPECT_EQ(a.norvik.Text(), u""); // emptied first
    }
}

TEST(Ficheros, LoGuardadoVuelveIgual) {
    const CarpetaTemporal carpeta;
    for (const std::u16string_view texto :
         {u"", u"uno", u"uno\r\n", u"ñ\r\n\r\ndos \x20AC", u"\x3B1 \xD83D\xDE00"}) {
        Anfitrion a;
        a.norvik.Text(texto);
        EXPECT_TRUE(a.norvik.SalvarFichero(carpeta / "f.txt"));
        EXPECT_TRUE(bytesDe(carpeta / "f.txt").ends_with("\r\n"));
        Anfitrion b;
        EXPECT_TRUE(b.norvik.CargarFichero(carpeta / "f.txt"));
        EXPECT_EQ(b.norvik.Text(), texto);
    }
    Anfitrion a;
    a.norvik.Text(u"uno");
    EXPECT_FALSE(a.norvik.SalvarFichero(carpeta / "no hay/f.txt"));
    EXPECT_FALSE(a.norvik.SalvarFichero(carpeta.ruta()));
    EXPECT_FALSE(a.norvik.SalvarFichero("/dev/full"));
}
