// SPDX-License-Identifier: MIT

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
    a.caja.eventos.cambio = [&](const CambioDeTexto& cambio) {
        suyo(cambio);
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
