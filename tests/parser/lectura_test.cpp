// SPDX-License-Identifier: MIT

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/lectorTokens.hpp"
#include "norvik/parser/pilaSLR.hpp"
#include "norvik/parser/traza.hpp"

#include <gtest/gtest.h>

using namespace norvik;

namespace {

void registra(pilaTokens& lexico) {
    struct Definicion {
        std::u16string texto, nombre, pseudo;
        std::int16_t tipo;
    };
    const Definicion definiciones[] = {
        {u"[a-z]+", u"id", u"identificador", Norvik_ExpReg},
        {u"=", u"igual", u"", Norvik_Operador},
        {u"[0-9]+", u"num", u"", Norvik_Numero},
        {u"\"[^\"]*\"", u"cadena", u"", Norvik_Cadena},
        {u"'[^']*'", u"caracter", u"", Norvik_Caracter},
        {u"/\\*([^*]|\\*[^/])*\\*/", u"bloque", u"", Norvik_ComentarioBloque},
        {u"//.*(\\n|$)", u"comentario", u"", Norvik_ComentarioLinea},
    };
    for (const auto& d : definiciones)
        ASSERT_EQ(lexico.SetER(d.texto, d.nombre, true, true, d.pseudo, d.tipo, 0, sinColor), u"");
}

// The tokens of a text up to the end, or to the first error: "name:lexeme(line,column)".
std::u16string lee(LectorTokens& lector, bool invisible) {
    std::u16string texto;
    for (;;) {
        const parLT par = invisible ? lector.LexTextoInvisible() : lector.Lex();
        texto += par.GetToken() + u":" + par.GetLexema() + u"(" + aTexto(lector.LineaToken()) + u"," +
                 aTexto(lector.ColumnaToken()) + u") ";
        if (par.GetToken() == tokenFin || par.GetToken() == tokenError) return texto;
    }
}

TEST(Lectura, LosDosLectoresDanLosMismosTokens) {
    const std::pair<std::u16string, std::u16string> casos[] = {
        {u"", u"EOF:EOF(1,1) "},
        {u"a = 1", u"id:a(1,1) igual:=(1,3) num:1(1,5) EOF:EOF(1,6) "},
        {u" \t\r\n// nada\r\n/* a\r\n*/", u"EOF:EOF(4,3) "},
        {u"a\r\n\r\nb", u"id:a(1,1) id:b(3,1) EOF:EOF(3,2) "},
        {u"ab\r\n  c", u"id:ab(1,1) id:c(2,3) EOF:EOF(2,4) "},
        {u"a\nb\rc", u"id:a(1,1) id:b(2,1) id:c(3,1) EOF:EOF(3,2) "},
        {u"\"abc\" \"\" 'x' ''", u"cadena:abc(1,1) cadena:\"\"(1,7) caracter:x(1,10) caracter:''(1,14) "
                                 u"EOF:EOF(1,16) "},
        {u"a #b", u"id:a(1,1) Norvik_ERROR:#(1,3) "},
        {u"a\u00A0", u"id:a(1,1) Norvik_ERROR:\u00A0(1,2) "},
        {u"a\U0001F600=", u"id:a(1,1) Norvik_ERROR:\U0001F600(1,2) "}, // a character is whole
        {u"a\xD83D=", u"id:a(1,1) Norvik_ERROR:\xD83D(1,2) "},
        {u"EOF=", u"Norvik_ERROR:E(1,1) "},
    };
    for (const auto& [texto, tokens] : casos) {
        pilaTokens lexico;
        registra(lexico);
        TextoInvisible editor;
        LectorTokens lector(lexico, editor);
        editor.ponTexto(texto);
        lector.InicializaLecturaTokens();
        EXPECT_EQ(lee(lector, false), tokens) << aUtf8(texto);
        EXPECT_EQ(lector.Lex().GetToken(), lector.ultimoToken());
        editor.ponTexto(u"");
        lector.textoInvisible().ponTexto(texto);
        lector.inicializaLecturaTokensTextoInvisible();
        EXPECT_EQ(lee(lector, true), tokens) << aUtf8(texto);
    }
}

TEST(Lectura, UnaCoincidenciaVaciaSoloCuentaAlFinal) {
    pilaTokens lexico;
    lexico.SetER(u"a*", u"as", true, true, u"", Norvik_ExpReg, 0, sinColor);
    TextoInvisible editor;
    LectorTokens lector(lexico, editor);
    for (const auto& [texto, tokens] :
         {std::pair{u"aa a", u"as:aa(1,1) as:a(1,4) as:(1,5) EOF:EOF(1,5) "},
          std::pair{u"", u"as:(1,1) EOF:EOF(1,1) "}, std::pair{u"b", u"Norvik_ERROR:b(1,1) "}}) {
        editor.ponTexto(texto);
        lector.InicializaLecturaTokens();
        EXPECT_EQ(lee(lector, false), tokens) << aUtf8(texto);
    }
}

TEST(Lectura, UnTokenQueEmpiezaPorUnSaltoEsDeLaLineaSiguiente) {
    pilaTokens lexico;
    lexico.SetER(u"\\n+", u"saltos", true, true, u"", Norvik_ExpReg, 0, sinColor);
    lexico.SetER(u"a", u"a", true, true, u"", Norvik_ExpReg, 0, sinColor);
    TextoInvisible editor;
    LectorTokens lector(lexico, editor);
    editor.ponTexto(u"a\n\na");
    lector.InicializaLecturaTokens();
    EXPECT_EQ(lee(lector, false), u"a:a(1,1) saltos:\n\n(2,1) a:a(3,1) EOF:EOF(3,2) ");
}

TEST(Lectura, UnTextoDemasiadoLargoNoSeLeeYElLectorSigueUtil) {
    pilaTokens lexico;
    registra(lexico);
    TextoInvisible editor;
    LectorTokens lector(lexico, editor);
    EXPECT_EQ(lector.Lex().GetToken(), tokenFin);
    editor.ponTexto(std::u16string(32767, u'a'));
    EXPECT_THROW(lector.InicializaLecturaTokens(), Desbordamiento);
    editor.ponTexto(std::u16string(32766, u'\r'));
    lector.InicializaLecturaTokens();
    EXPECT_EQ(lee(lector, false), u"EOF:EOF(32767,1) ");
    // Editing after the initialisation: tokens are those recognised, characters those of the text now.
    editor.ponTexto(u"ab =");
    lector.InicializaLecturaTokens();
    editor.ponTexto(u"xy#");
    EXPECT_EQ(lee(lector, false), u"id:ab(1,1) Norvik_ERROR:#(1,3) ");
}

TEST(PilaSLR, GuardaEstadoLineaYColumna) {
    pilaSLR pila;
    EXPECT_EQ(pila.POP() + pila.cima() + pila.cimaLineas() + pila.cimaColumnas(), 0);
    pila.PUSH(5, 3, 7);
    pila.PUSH(9, 32768, -32769);
    EXPECT_THROW(pila.cimaLineas(), Desbordamiento);
    EXPECT_THROW(pila.cimaColumnas(), Desbordamiento);
    EXPECT_EQ(pila.POP(), 9);
    EXPECT_EQ(pila.cima(), 5);
    EXPECT_EQ(pila.cimaLineas(), 3);
    EXPECT_EQ(pila.cimaColumnas(), 7);
    pila.POP(4);
    EXPECT_TRUE(pila.esVacia());
}

TEST(Traza, GuardaDesplazamientosYReducciones) {
    Traza traza;
    traza.registraDesplazamiento(u"ab", 3, 14);
    traza.registraReduccion(12);
    traza.registraDesplazamiento(u"c", 4, 1);
    const std::u16string esperados[][4] = {{u"desplazamiento", u"c", u"4", u"1"},
                                           {u"reduccion", u"12", u"0", u"0"},
                                           {u"desplazamiento", u"ab", u"3", u"14"}};
    for (const auto& [tipo, valor, linea, columna] : esperados) {
        EXPECT_EQ(traza.tipoCimaTraza(), tipo);
        EXPECT_EQ(traza.valorCimaTraza(), valor);
        EXPECT_EQ(traza.lineaCimaTraza(), linea);
        EXPECT_EQ(traza.columnaCimaTraza(), columna);
        traza.sacaTraza();
    }
    EXPECT_EQ(traza.numElementosTraza(), 0U);
    EXPECT_THROW(traza.sacaTraza(), IndiceNoValido);
    EXPECT_THROW(traza.tipoCimaTraza(), IndiceNoValido);
    traza.registraReduccion(1);
    traza.vaciaTraza();
    EXPECT_EQ(traza.numElementosTraza(), 0U);
}

TEST(Lectura, DescribeElUltimoToken) {
    pilaTokens lexico;
    registra(lexico);
    TextoInvisible editor;
    LectorTokens lector(lexico, editor);
    editor.ponTexto(u"a\r\n = #");
    lector.InicializaLecturaTokens();
    const std::u16string descripciones[] = {
        u"Se ha encontrado identificador (Línea 1, Columna 1)",
        u"Se ha encontrado '=' (Línea 2, Columna 2)",
        u"Se ha encontrado  (Línea 2, Columna 4)",
    };
    for (const auto& descripcion : descripciones) {
        lector.Lex();
        EXPECT_EQ(lector.DameStringTokenLeido(), descripcion);
    }
    editor.ponTexto(u""); // what was read keeps the place that it had
    EXPECT_EQ(lector.DameStringTokenLeido(), descripciones[2]);
    lector.InicializaLecturaTokens();
    lector.Lex();
    EXPECT_EQ(lector.DameStringTokenLeido(), u"Se ha encontrado el final del fichero (Línea 1, Columna 1)");
}

} // namespace
