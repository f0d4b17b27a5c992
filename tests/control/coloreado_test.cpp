// SPDX-License-Identifier: MIT

// Colouring, error marks and what a failed parse shows.
#include "apoyo/anfitrion.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

constexpr std::u16string_view mini = u"Token com = \"/\\*([^*])*\\*/\", TipoToken = TTComentarioBloque;"
                                     u"Token num = \"[0-9]+\", TipoToken = TTNumero;"
                                     u"Token ini = \"begin\", TipoToken = TTPalabraReservada;"
                                     u"Token fija = \"Fija\", TipoToken = TTAutoExpReg;"
                                     u"Token mas = \"\\+\", TipoToken = TTOperador;"
                                     u"Token id = \"[a-z]+\";"
                                     u"S -> S mas T | T; T -> num | id | ini id;";

struct Editor : Anfitrion {
    explicit Editor(std::u16string_view texto = {}) {
        caja.ponOcultaSeleccion(false);
        compila(mini);
        norvik.Colorear(true);
        norvik.Text(texto);
    }
};

/// Runs as text: "start-end:colour" in hexadecimal, plain ones left out.
std::string colores(const Editor& e) {
    std::string texto;
    for (const auto& t : e.caja.colores()) {
        char trozo[40];
        std::snprintf(trozo, sizeof trozo, "%d-%d:%06x ", t.inicio, t.inicio + t.longitud,
                      static_cast<unsigned>(t.color));
        if (t.color != 0) texto += trozo;
    }
    return texto;
}

} // namespace

TEST(Coloreado, CadaTokenDelColorDeSuTipo) {
    Editor e(u"begin x + 12 /*\r\n*/ fija");
    e.caja.selecciona(3, 4);
    e.norvik.ColoreaTodo();
    EXPECT_EQ(colores(e), "0-5:800000 8-9:000080 10-12:808000 13-19:008000 ");
    EXPECT_EQ(e.norvik.SelStart(), 3);
    EXPECT_EQ(e.norvik.SelLength(), 4);
    EXPECT_EQ(e.norvik.Text(), u"begin x + 12 /*\r\n*/ fija");
    EXPECT_FALSE(e.norvik.TextoModificado());
    EXPECT_TRUE(e.enReposo());
}

TEST(Coloreado, UnaLineaNoVeLoQueSaleDeElla) {
    Editor e(u"1 /* 2\r\n3 */ 4");
    e.norvik.Colorear(false);
    e.caja.selecciona(10, 0); // leaving the first line would colour it
    e.norvik.Colorear(true);
    e.norvik.ColoreaLineaActual();
    EXPECT_EQ(colores(e), "8-9:808000 13-14:808000 ");
    e.caja.selecciona(0, 0);
    e.norvik.ColoreaLineaActual();
    EXPECT_EQ(colores(e), "0-1:808000 5-6:808000 8-9:808000 13-14:808000 ");
    e.norvik.ColoreaTodo();
    EXPECT_EQ(colores(e), "0-1:808000 2-12:008000 13-14:808000 ");
}

TEST(Coloreado, SePuedeCancelar) {
    Editor e(std::u16string(30000, u'x'));
    e.norvik.Lexico().SetER(u"(x*x*)*y", u"mala", true, false, u"", Norvik_Numero, Norvik_SinBase, sinColor);
    std::stop_source parada;
    parada.request_stop();
    for (int vez = 0; vez < 2; ++vez) {
        e.sistema.parada = parada.get_token();
        EXPECT_THROW(e.norvik.ColoreaTodo(), OperacionCancelada);
        EXPECT_TRUE(e.enReposo());
        EXPECT_FALSE(e.norvik.Lexico().cancelacion.stop_possible());
    }
    e.sistema.parada = {};
    e.norvik.Text(u"begin");
    e.norvik.ColoreaTodo();
    EXPECT_EQ(colores(e), "0-5:800000 ");
}

TEST(Coloreado, ApagadoNoHaceNada) {
    Editor e(u"begin 12");
    e.norvik.Colorear(false);
    e.norvik.ColoreaTodo();
    EXPECT_EQ(colores(e), "");
    e.norvik.Text(std::u16string(40000, u'1'));
    EXPECT_NO_THROW(e.norvik.ColoreaTodo());
}

TEST(Coloreado, CorrigeLasPalabrasDeCajaFija) {
    const std::tuple<bool, bool, std::u16string_view, std::string> casos[] = {
        {true, false, u"begin Fija ABC+begin", "0-5:800000 14-15:000080 15-20:800000 "},
        {true, true, u"BEGIN FIJA ABC+begin", "0-5:800000 14-15:000080 15-20:800000 "},
        {false, false, u"BEGIN FIJA ABC+begin", "0-5:800000 14-15:000080 15-20:800000 "}};
    for (const auto& [corrige, sensible, queda, vistos] : casos) {
        Editor e(u"BEGIN FIJA ABC+begin");
        e.norvik.AutoCorreccion(corrige);
        e.norvik.LenguajeSensible(sensible);
        e.norvik.ColoreaTodo();
        EXPECT_EQ(e.norvik.Text(), queda);
        EXPECT_EQ(colores(e), vistos);
    }
    Editor apagado(u"END FIJA");
    apagado.norvik.AutoCorreccion(true);
    apagado.norvik.ColorPR(-1);
    apagado.norvik.SetPalabraReservada(u"end");
    apagado.norvik.ColoreaTodo();
    EXPECT_EQ(apagado.norvik.Text(), u"END Fija");
}

TEST(Coloreado, LineaALineaComoDeUnaVez) {
    std::mt19937 azar(11);
    const std::u16string_view piezas[] = {u"begin", u"12", u" ",       u"\r\n", u"+",
                                          u"abc",   u"#",  u"/* x */", u"FIJA"};
    for (int vez = 0; vez < 60; ++vez) {
        std::u16string texto;
        for (int i = 0; i < 40; ++i) texto += piezas[azar() % std::size(piezas)];
        Editor entero(texto);
        entero.norvik.ColoreaTodo();
        Editor porLineas(texto);
        for (std::int32_t l = 0; l < porLineas.caja.numeroDeLineas(); ++l) {
            porLineas.caja.selecciona(porLineas.caja.inicioDeLinea(l), 0);
            porLineas.norvik.ColoreaLineaActual();
        }
        EXPECT_EQ(colores(porLineas), colores(entero)) << aUtf8(texto);
    }
}

TEST(Marcas, UnaLineaSinSuSalto) {
    const std::tuple<std::u16string_view, std::int16_t, std::string> casos[] = {
        {u"ab\r\ncd\r\nef", 1, "0-2:00ff00 "},
        {u"ab\r\ncd\r\nef", 2, "4-6:00ff00 "},
        {u"ab\r\ncd\r\nef", 3, "8-10:00ff00 "},
        {u"ab\r\ncd\r\nef", 4, ""},
        {u"ab\r\ncd\r\nef", 0, ""},
        {u"ab\r\ncd\r\nef", -5, ""},
        {u"abc", 1, "0-3:00ff00 "},
        {u"", 1, ""},
        {u"ab\r\n\r\nef", 2, ""}};
    for (const auto& [texto, linea, vistos] : casos) {
        Editor e(texto);
        e.caja.selecciona(1, 1);
        const auto cursor = e.norvik.SelStart();
        e.norvik.ColorError(0x00FF00); // read at each marking
        e.norvik.MarcaErrorLinea(linea);
        EXPECT_EQ(colores(e), vistos) << aUtf8(texto) << linea;
        EXPECT_EQ(e.norvik.SelStart(), cursor);
        EXPECT_TRUE(e.enReposo());
        EXPECT_EQ(e.caja.colorSeleccion(), linea == 1 && cursor == 1 ? 0x00FF00 : 0);
    }
}

TEST(Marcas, ElUltimoTokenLeido) {
    Editor e(u"ab\r\n 123#");
    e.norvik.InicializaLecturaTokens();
    e.norvik.Lex();
    for (const auto marcados : {"5-8:0000ff ", "5-9:0000ff "}) { // the second is a character by itself
        e.norvik.Lex();
        e.norvik.MarcaErrorToken();
        EXPECT_EQ(colores(e), marcados);
    }
    e.norvik.MarcaErrorLineaToken();
    EXPECT_EQ(colores(e), "4-9:0000ff ");
    Editor par(u"\U0001F600 a");
    par.norvik.InicializaLecturaTokens();
    par.norvik.Lex();
    par.norvik.MarcaErrorToken();
    EXPECT_EQ(colores(par), "0-2:0000ff ");
}

TEST(Marcas, LaQueAcabaConElSaltoDejaComoEstaLaLineaSiguiente) {
    Editor e(u"ab\r\ncd\r\nef");
    e.norvik.SetER(u"ab\\s+", u"conSalto", true);
    e.caja.selecciona(4, 2);
    e.caja.ponColorSeleccion(0x00FF00); // the host's own
    e.norvik.InicializaLecturaTokens();
    e.norvik.Lex();
    e.norvik.MarcaErrorToken();
    EXPECT_EQ(colores(e), "0-4:0000ff 4-6:00ff00 ");
    e.caja.selecciona(8, 0);
    e.caja.reemplazaSeleccion(u"x");
    EXPECT_EQ(colores(e), "4-6:00ff00 ");
}

TEST(Marcas, SignosNumeradosDesdeElDos) {
    Editor e(u"ab");
    e.norvik.PonSignoError(7);
    e.norvik.PonSignoError(7);
    EXPECT_EQ(e.norvik.signos(), (SignosDelBorde::PorIndice{{2, {2, 1, 7}}, {3, {3, 1, 7}}}));
}

TEST(Analisis, UnErrorSeMuestraYSeMarcaSiSeQuiere) {
    const std::tuple<std::u16string_view, std::string, std::string> casos[] = {
        {u"1 +\r\n# 2", "ERROR Léxico", "5-8:0000ff "},
        {u"1 +", "ERROR de Sintaxis", "0-3:0000ff "},
        {u"fija", "ERROR de Sintaxis", "0-4:0000ff "}};
    for (const auto& [texto, titulo, vistos] : casos) {
        for (const bool activo : {false, true}) {
            Editor e(texto);
            e.norvik.MuestraMensajesDeError(activo);
            e.norvik.MarcarErrores(activo);
            EXPECT_FALSE(e.norvik.ConstruyeArbolSintactico());
            const std::string mensaje = titulo + ": " + aUtf8(e.norvik.GetmensajeError()) + "\n";
            EXPECT_EQ(mensajes(e.sistema.mensajes), activo ? mensaje : "");
            EXPECT_EQ(colores(e), activo ? vistos : "");
        }
    }
}
