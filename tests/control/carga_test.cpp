// SPDX-License-Identifier: MIT

// Loading a language into the control call by call, and generating its table.
#include "apoyo/anfitrion.hpp"
#include "apoyo/repite.hpp"

#include <gtest/gtest.h>

using namespace norvik;
using namespace norvik::apoyo;

TEST(Carga, PalabraReservadaEscribeElTokenQueFaltaba) {
    Anfitrion a;
    std::u16string lexema = u"While";
    std::u16string token;
    a.norvik.SetPalabraReservada(lexema, token);
    EXPECT_EQ(token, u"while");
    token = u"otro";
    a.norvik.SetPalabraReservada(u"Ñu", token, u"(pseudo)");
    EXPECT_EQ(token, u"otro");
    a.norvik.SetPalabraReservada(u"ÑAME");
    a.norvik.SetPalabraReservada(u"si", u"sí");
    EXPECT_EQ(a.lexico(), "while 1 0 () While\notro 1 0 ((pseudo)) Ñu\nñame 1 0 () ÑAME\nsí 1 0 () si\n");
}

TEST(Carga, DefinicionesConSusValoresPorOmision) {
    Anfitrion a;
    a.norvik.SetER(u"[0-9]", u"digito");
    a.norvik.SetER(u"<digito>+", u"nint", true, Norvik_Numero, u"entero", Norvik_BaseDecimal, 0x123456);
    a.norvik.SetOperador(u"\\+", u"mas");
    a.norvik.SetComentarioLinea(u"//");
    a.norvik.SetComentarioLinea(u"--");
    EXPECT_EQ(a.lexico(), "digito- 0 0 () [0-9]\nnint 7 10 (entero) [0-9]+\nmas 2 0 () \\+\n"
                          "comentario 4 0 () //.*(\\n|$)\ncomentario 4 0 () --.*(\\n|$)\n");
    EXPECT_EQ(a.norvik.Lexico().getTokenLenguaje(1).GetColor(), 0x808000); // the kind's, not the one passed
    a.norvik.SetRegla(u"S -> nint");
    EXPECT_TRUE(a.norvik.GeneraCompilador());
    EXPECT_TRUE(a.analiza(u"12 // uno\r\n-- dos"));
    EXPECT_THROW(a.norvik.SetER(u"x", u"x", true, 40000), Desbordamiento);
}

TEST(Carga, LenguajeSensibleAlRegistrar) {
    Anfitrion a;
    a.norvik.SetPalabraReservada(u"si");
    a.norvik.LenguajeSensible(true);
    a.norvik.SetPalabraReservada(u"no");
    a.norvik.LenguajeSensible(false);
    a.norvik.Text(u"SI si NO no");
    a.norvik.InicializaLecturaTokens();
    EXPECT_EQ(a.norvik.Lex().GetToken(), u"si");
    EXPECT_EQ(a.norvik.Lex().GetToken(), u"si");
    EXPECT_EQ(a.norvik.Lex().GetToken(), u"Norvik_ERROR");
}

TEST(Carga, LosErroresLexicosSeMuestranSiempre) {
    Anfitrion a;
    a.norvik.MuestraMensajesDeError(false);
    a.norvik.SetER(u"<digito>+", u"nint", true, 7, u"numero entero", 10);
    a.norvik.SetOperador(u"(", u"par");
    a.norvik.SetComentarioLinea(u"\\c(");
    ASSERT_EQ(a.sistema.mensajes.size(), 3U);
    EXPECT_EQ(
        a.sistema.mensajes[0],
        (Mensaje{u"Error en la invocación de la expresión regular 'digito' desde la expresión regular 'nint'."
                 u"\r\nLa expresión regular 'digito' o no existe o no se ha definido antes que 'nint'.",
                 u"Norvik: Error en especificación léxica", Icono::Exclamacion, Botones::Aceptar}));
    EXPECT_EQ(a.norvik.Lexico().getNumTokensLenguaje(), 0);
}

TEST(Carga, ReglasSinBlancosAlrededor) {
    Anfitrion a;
    a.norvik.SetRegla(u"  E   ->   E mas T  |  T ");
    a.norvik.SetRegla(u"T->num->", 7);
    a.norvik.SetRegla(u"T ->");
    EXPECT_EQ(a.reglas(), "E -> E mas T\nE -> T\nT -> num->\nT -> \n");
    EXPECT_THROW(a.norvik.SetRegla(u"E - > T"), NoCoincidenLosTipos);
    EXPECT_THROW(a.norvik.SetRegla(u""), NoCoincidenLosTipos);
    EXPECT_EQ(a.norvik.Gramatica().getNumReglas(), 4);
}

TEST(Genera, PunteroYEventosEntreLosPasos) {
    Anfitrion a;
    EXPECT_TRUE(a.norvik.GeneraCompilador()); // nothing to generate
    EXPECT_EQ(a.sistema.pasos, "");
    a.norvik.SetRegla(u"S -> a B");
    EXPECT_FALSE(a.norvik.GeneraCompilador());
    EXPECT_EQ(a.sistema.mensajes,
              (std::vector<Mensaje>{
                  {u"La variable B definida en la parte derecha de la regla S no está definida.",
                   u"ERROR en la definición de la gramática", Icono::Critico, Botones::Aceptar}}));
    EXPECT_EQ(a.sistema.pasos, "m");
    a.sistema.pasos.clear();
    a.norvik.SetRegla(u"B -> b");
    EXPECT_TRUE(a.norvik.GeneraCompilador());
    EXPECT_EQ(a.sistema.pasos, "OOeOeOeOeNe");
}

TEST(Genera, UnFalloNoDejaMediaTabla) {
    Anfitrion a;
    a.caja.ponOcultaSeleccion(false);
    ASSERT_TRUE(a.compila(u"Token a = \"a\"; S -> a;"));
    a.norvik.SetRegla(u"S -> " + repite(u"a ", 1000)); // its states do not fit below 1000
    EXPECT_THROW(a.norvik.GeneraCompilador(), ErrorNorvik);
    EXPECT_TRUE(a.enReposo());
    EXPECT_EQ(a.norvik.Gramatica().GetNumSimbolos(), 0);
    EXPECT_FALSE(a.analiza(u"a"));
    EXPECT_TRUE(a.compila(u"Token a = \"a\"; S -> a;"));
    EXPECT_TRUE(a.analiza(u"a"));
}

TEST(Genera, BorrarElLenguajeDejaLasReglas) {
    Anfitrion a;
    ASSERT_TRUE(a.compila(u"Token a = \"a\"; S -> a;"));
    const std::u16string tabla = a.tabla();
    a.norvik.BorraLenguaje();
    EXPECT_EQ(a.lexico(), "");
    EXPECT_FALSE(a.analiza(u"a"));
    EXPECT_TRUE(a.norvik.GeneraCompilador());
    EXPECT_EQ(a.tabla(), tabla);
}

TEST(Carga, ElTextoInvisibleSeAnalizaYGuardaSuLugar) {
    Anfitrion a;
    ASSERT_TRUE(a.compila(u"Token id = \"[a-z]+\"; S -> id id;"));
    a.norvik.Text(u"x");
    a.norvik.SetTextoInvisible(u"a\r\n b");
    EXPECT_TRUE(a.norvik.ConstruyeArbolSintacticoTextoInvisible());
    EXPECT_EQ(a.norvik.GetTextoInvisible(), u"a\r\n b");
    EXPECT_EQ(a.norvik.GetArbolSintactico().GetHijo(2)->GetLexema(), u"b");
    EXPECT_FALSE(a.norvik.CargaGramatica(u"Token id = \"a\";\r\n\r\nS -> ;"));
    EXPECT_EQ(a.norvik.GetTextoInvisible(), u"");
    EXPECT_NE(a.norvik.GetmensajeError().find(u"(Línea 3, Columna 6)"), std::u16string::npos);
    EXPECT_EQ(a.norvik.LineaToken(), 3);
    EXPECT_EQ(a.norvik.ColumnaToken(), 6);
    EXPECT_EQ(a.norvik.DameStringLineaColumnaToken(), u"(Línea 3, Columna 6)");
}
