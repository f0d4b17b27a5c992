// SPDX-License-Identifier: MIT

// The tab key over lines.
#include "apoyo/anfitrion.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace norvik;

namespace {

struct Sangria : testing::Test {
    Sangria() { norvik.ponAyudas({.sangraSeleccion = true}); }

    /// Square brackets hold the selection, a bar is the caret; / is a line break.
    void pon(std::u16string marcado) {
        const std::size_t inicio = marcado.find_first_of(u"[|");
        marcado.erase(inicio, 1);
        const std::size_t fin = marcado.find(u']');
        if (fin != marcado.npos) marcado.erase(fin, 1);
        caja.ponTexto({});
        for (const char16_t c : marcado) caja.reemplazaSeleccion(c == u'/' ? u"\r\n" : std::u16string(1, c));
        norvik.InicializaUndosYRedos();
        const auto posicion = [&](std::size_t p) {
            const auto saltos =
                std::count(marcado.begin(), marcado.begin() + static_cast<std::ptrdiff_t>(p), u'/');
            return static_cast<std::int32_t>(p) + static_cast<std::int32_t>(saltos);
        };
        const std::int32_t desde = posicion(inicio);
        caja.selecciona(desde, fin == marcado.npos ? 0 : posicion(fin) - desde);
    }
    std::u16string visto() const {
        std::u16string texto(caja.texto());
        const auto inicio = static_cast<std::size_t>(caja.inicioSeleccion());
        const auto longitud = static_cast<std::size_t>(caja.longitudSeleccion());
        if (longitud > 0) texto.insert(inicio + longitud, 1, u']');
        texto.insert(inicio, 1, longitud > 0 ? u'[' : u'|');
        std::erase(texto, u'\r');
        std::ranges::replace(texto, u'\n', u'/');
        return texto;
    }

    apoyo::Anfitrion anfitrion;
    Norvik& norvik = anfitrion.norvik;
    CajaTexto& caja = anfitrion.caja;
};

std::string comoBytes(const std::u16string& texto) {
    return {texto.begin(), texto.end()};
}

} // namespace

TEST_F(Sangria, PonerYQuitar) {
    struct Caso {
        std::u16string texto;
        std::u16string puesta;
        std::u16string quitada;
    };
    const Caso casos[] = {
        {u"[a/b]", u"[  a/  b]", u"[a/b]"},
        {u"x/a[b/c]d/y", u"x/  a[b/  c]d/y", u"x/a[b/c]d/y"},
        {u"[a/b/]c", u"[  a/  b/]c", u"[a/b/]c"},
        {u"[a//b]", u"[  a//  b]", u"[a//b]"},
        {u"[    a/ b/\tc/  ]", u"[      a/   b/  \tc/    ]", u"[  a/b/c/]"},
        {u"   [ a/   b]", u"     [ a/     b]", u" [ a/ b]"},
        {u" [ a/  b]", u"   [ a/    b]", u"[a/b]"},
        {u"  a|b", u"  a  |b", u"a|b"},
        {u"|    a", u"  |    a", u"|  a"},
        {u"   |", u"     |", u" |"},
        {u"  [ab]", u"    |", u"[ab]"},
        {u"|", u"  |", u"|"},
    };
    norvik.EspaciosXTAB(2);
    for (const Caso& caso : casos) {
        for (const bool atras : {false, true}) {
            pon(caso.texto);
            atras ? norvik.tabulaAtras() : norvik.tabuladorEnfocado();
            EXPECT_EQ(comoBytes(visto()), comoBytes(atras ? caso.quitada : caso.puesta))
                << comoBytes(caso.texto);
        }
    }
}

/// One step of either history, exact, that keeps the colours.
TEST_F(Sangria, EsUnPasoYConservaLosColores) {
    norvik.SetPalabraReservada(u"si");
    norvik.SetER(u"/\\*([^*])*\\*/", u"com", true, Norvik_ComentarioBloque);
    norvik.Colorear(true);
    for (const bool porPalabras : {false, true}) {
        norvik.ponAyudas({.deshacePorPalabras = porPalabras, .sangraSeleccion = true});
        norvik.Text(u"no\r\n/* si\r\n si */ si\r\nsi");
        norvik.InicializaUndosYRedos();
        caja.selecciona(6, 0);
        caja.reemplazaSeleccion(u"x");
        norvik.ColoreaTodo();
        const std::u16string antes = norvik.Text();
        caja.selecciona(0, static_cast<std::int32_t>(antes.size())); // its first line, edited, is plain
        norvik.tabuladorEnfocado();
        EXPECT_EQ(norvik.Text(), u"    no\r\n    /*x si\r\n     si */ si\r\n    si");
        const auto colores = caja.colores();
        norvik.ColoreaTodo();
        EXPECT_EQ(caja.colores(), colores);
        norvik.tabulaAtras();
        EXPECT_EQ(norvik.Text(), antes);
        norvik.Undo();
        norvik.Undo();
        EXPECT_EQ(norvik.Text(), antes);
        norvik.Redo();
        EXPECT_EQ(norvik.Text(), u"    no\r\n    /*x si\r\n     si */ si\r\n    si");
    }
}

/// Return, where lines have no number any more.
TEST_F(Sangria, TrasLasLineasNumeradas) {
    norvik.AutoTAB(true);
    norvik.Colorear(true);
    std::u16string texto;
    for (int i = 0; i < 32'770; ++i) texto += u"\r\n";
    for (const bool conAyudas : {true, false}) {
        norvik.ponAyudas(conAyudas ? Ayudas{.coloreaAlEscribir = true} : Ayudas{});
        caja.ponTexto(texto + u"  x\r\n");
        const auto alFinal = [&] { caja.selecciona(static_cast<std::int32_t>(caja.texto().size()), 0); };
        EXPECT_THROW(alFinal(), Desbordamiento); // its line is told by a number
        std::int16_t codigo = tecla::retorno;
        std::int16_t shift = 0;
        if (conAyudas)
            EXPECT_NO_THROW(caja.eventos.teclaArriba(codigo, shift));
        else
            EXPECT_THROW(caja.eventos.teclaArriba(codigo, shift), Desbordamiento);
        EXPECT_EQ(caja.texto().ends_with(u"  x\r\n  "), conAyudas);
    }
}

TEST_F(Sangria, ApagadaElTabuladorReemplaza) {
    norvik.ponAyudas({});
    pon(u"[a/b]");
    norvik.tabuladorEnfocado();
    EXPECT_EQ(norvik.Text(), u"    ");
}
