// SPDX-License-Identifier: MIT

// The language of specifications and its compilation, through the control.
#include "apoyo/anfitrion.hpp"
#include "apoyo/repite.hpp"
#include "norvik/pattern/emparejador.hpp"
#include "norvik/spec/compiladorEspecificacion.hpp"
#include "norvik/spec/lenguajeEspecificacion.hpp"

#include <gtest/gtest.h>

#include <string>

using namespace norvik;
using namespace norvik::apoyo;

TEST(LenguajeEspecificacion, InstaladoresYSusDiferencias) {
    Anfitrion directo;
    InstalaLenguajeEspecificacion(directo.norvik.Gramatica(), directo.norvik.Lexico(), true);
    Anfitrion publico;
    publico.norvik.LenguajeSensible(true);
    CargaMetaLenguaje(publico.norvik);
    EXPECT_EQ(mensajes(publico.sistema.mensajes), "");

    EXPECT_EQ(directo.norvik.Gramatica().getNumReglas(), 28);
    EXPECT_EQ(directo.reglas(), publico.reglas());
    EXPECT_EQ(directo.tabla(), publico.tabla());
    EXPECT_EQ(directo.norvik.Lexico().expresionesRegulares().size(), 34U);
    EXPECT_EQ(publico.norvik.Lexico().expresionesRegulares().size(), 35U);
    // Loaded call by call, the operators have no names to be shown and there is one more kind.
    std::string otro = directo.lexico();
    for (const std::string nombre : {"->", "{", "}", "(", ")", ";", "|", ","}) {
        const std::string con = " (" + nombre + ") ";
        otro.replace(otro.find(con), con.size(), " () ");
    }
    otro.insert(otro.find("baseT 1"), "tipoToken 9 0 (TTFecha) TTFecha\n");
    EXPECT_EQ(publico.lexico(), otro);
    EXPECT_TRUE(directo.analiza(u"TOKEN a = \"x\"; ExpReg b = \"y\";"));
    EXPECT_FALSE(publico.analiza(u"TOKEN a = \"x\";")); // here case counts
    EXPECT_TRUE(publico.analiza(u"Token a = \"x\", TipoToken = TTFecha;"));
    EXPECT_FALSE(directo.analiza(u"Token a = \"x\", TipoToken = TTFecha;"));
}

TEST(CargaGramatica, AceptaORechaza) {
    const std::tuple<std::u16string_view, bool, std::string> casos[] = {
        {u"", true, ""},
        {u"' sólo un comentario", true, ""},
        {u"ExpReg a = \"x\"; Token b = \"<a>y\";", true, ""},
        {u"token NUM = \"[0-9]+\", tipotoken = ttnumero, basetoken = btOctal; S -> NUM;", false,
         "La variable NUM definida en la parte derecha de la regla S no está definida."},
        {u"S -> a; { } S -> b;", true, ""},
        {u"S -> Ø | a Ñ;", true, ""},
        {u"S -> a; Token a = \"x\";", false,
         "Error: Se ha encontrado 'Token' (Línea 1, Columna 9). Se esperaba identificador, {."},
        {u"Token a = \"x\"\r\nToken b = \"y\";", false,
         "Error: Se ha encontrado 'Token' (Línea 2, Columna 1). Se esperaba ;, (, ,."},
        {u"S -> a Ø;", false,
         "Error: Se ha encontrado simbolo de cadena vacía (Ø:Alt 0216) (Línea 1, Columna 8). "
         "Se esperaba ;, identificador, |."},
        {u"S -> a; { x }", false,
         "Error: Se ha encontrado identificador (Línea 1, Columna 11). Se esperaba }."},
        {u"Token a = \"\";", false, "Error (Línea 1, Columna 11): caracter '\"' incorrecto."},
        {u"S -> #;", false, "Error (Línea 1, Columna 6): caracter '#' incorrecto."},
        {u"a TipoToken = TTNumero;", false,
         "Error: Se ha encontrado 'TipoToken' (Línea 1, Columna 3). Se esperaba ->."},
        {u"S -> a B; C -> c;", false,
         "La variable B definida en la parte derecha de la regla S no está definida."},
    };
    for (const auto& [especificacion, vale, mensaje] : casos) {
        Anfitrion a;
        a.caja.ponOcultaSeleccion(false);
        EXPECT_EQ(a.norvik.CargaGramatica(especificacion), vale) << aUtf8(especificacion);
        EXPECT_EQ(aUtf8(a.norvik.GetmensajeError()), mensaje) << aUtf8(especificacion);
        EXPECT_TRUE(a.enReposo() && a.sistema.mensajes.empty());
        EXPECT_EQ(a.sistema.pasos, "ON");
    }
}

TEST(CargaGramatica, RegistraDefinicionesYReglas) {
    Anfitrion a;
    a.norvik.LenguajeSensible(true); // only heeded by what is loaded call by call
    EXPECT_TRUE(
        a.compila(u"' lenguaje de expresiones\r\n"
                  u"ExpReg cifra = \"[0-9]\";\r\n"
                  u"Token num = \"<cifra>+\", TipoToken = TTNumero, BaseToken = BTDecimal (\"numero\");\r\n"
                  u"Token mas = \"\\+\", TipoToken = TTOperador;\r\n"
                  u"Token oct = \"0<cifra>\", BaseToken = BTOctal;\r\n"
                  u"Token nb = \"1<cifra>\", TipoToken = TTNumero;\r\n"
                  u"Token k = \"x\", TipoToken = ttpalabrareservada (\"equis\");\r\n"
                  u"Token com = \"/\\*\\*/\", TipoToken = TTComentarioBloque, BaseToken = bthexadecimal;\r\n"
                  u"Token q = \"\\c(34)\";\r\n"
                  u"E -> E mas T | T;\r\n"
                  u"T -> num | Ø; { }\r\n"));
    EXPECT_EQ(a.lexico(), R"(cifra- 0 0 () [0-9]
num 7 10 (numero) [0-9]+
mas 2 0 () \+
oct 7 8 () 0[0-9]
nb 7 0 () 1[0-9]
k 1 0 (equis) x
com 3 16 () /\*\*/
q 0 0 () "
)");
    EXPECT_EQ(a.reglas(), "E -> E mas T\nE -> T\nT -> num\nT -> Ø\n");
    EXPECT_TRUE(a.analiza(u"12+3"));
    EXPECT_TRUE(a.compila(u"Token a = \"x\"; S -> a;")); // nothing stays of the one before
    EXPECT_TRUE(a.analiza(u"X"));
    EXPECT_EQ(a.lexico(), "a 0 0 () x\n");
    EXPECT_EQ(a.reglas(), "S -> a\n");
}

TEST(CargaGramatica, UnaDefinicionQueFallaNoDetieneALasDemas) {
    Anfitrion a;
    EXPECT_TRUE(
        a.norvik.CargaGramatica(u"ExpReg a = \"<b>\"; ExpReg b = \"x\"; Token c = \"[0-9\"; S -> b;"));
    EXPECT_EQ(a.lexico(), "b- 0 0 () x\n");
    EXPECT_EQ(
        mensajes(a.sistema.mensajes),
        "Atención: Error en la invocación de la expresión regular 'b' desde la expresión regular 'a'.\r\n"
        "La expresión regular 'b' o no existe o no se ha definido antes que 'a'.\n"
        "Atención: La definición de la expresión regular 'c':\r\n\t\t[0-9\r\nes incorrecta. Revísela para "
        "obtener un análisis léxico adecuado.\n");
    EXPECT_EQ(a.sistema.pasos, "OmmN"); // shown while the pointer is busy
    EXPECT_EQ(a.sistema.mensajes[0].icono, Icono::Exclamacion);
}

TEST(CargaGramatica, TrasUnFalloQuedaElLenguajeDeEspecificacion) {
    Anfitrion a;
    a.norvik.MuestraMensajesDeError(true);
    a.norvik.MarcarErrores(true);
    a.norvik.Text(u"uno\r\ndos");
    EXPECT_FALSE(a.norvik.CargaGramatica(u"ExpReg\r\n= ;"));
    EXPECT_EQ(mensajes(a.sistema.mensajes),
              "ERROR de Sintaxis: Error: Se ha encontrado '=' (Línea 2, Columna 1). Se "
              "esperaba identificador.\n");
    std::string marcados; // the line of the specification, in the editor
    for (const auto& tramo : a.caja.colores())
        if (tramo.color != 0) marcados += std::to_string(tramo.inicio) + '+' + std::to_string(tramo.longitud);
    EXPECT_EQ(marcados, "5+3");
    EXPECT_EQ(a.norvik.GetCodigoError(), 2);
    EXPECT_EQ(a.norvik.Gramatica().getNumReglas(), 28);
    EXPECT_TRUE(a.analiza(u"ExpReg a = \"x\";")); // ready to be used
    EXPECT_TRUE(a.compila(u"Token x = \"x\"; S -> x;"));
    EXPECT_TRUE(a.analiza(u"x"));
}

TEST(CargaGramatica, ElComentarioSigueALenguajeSensible) {
    for (const bool sensible : {false, true}) {
        Anfitrion a;
        a.norvik.LenguajeSensible(sensible);
        EXPECT_FALSE(a.norvik.CargaGramatica(u";"));
        for (const auto& d : a.norvik.Lexico().expresionesRegulares()) {
            EXPECT_EQ(d->expReg->ignoraMayusculas(), d->nomER != u"comentario" || !sensible);
        }
    }
}

TEST(CargaGramatica, EspecificacionesHastaElLimite) {
    Anfitrion a;
    a.caja.ponOcultaSeleccion(false);
    const std::u16string larga = u"S ->" + repite(u" a", 16000) + u";";
    EXPECT_TRUE(a.norvik.CargaGramatica(larga)); // one rule, its symbols nested 16 000 deep
    EXPECT_EQ(a.norvik.Gramatica().GetNumElementosRegla(1), 16000);
    EXPECT_TRUE(a.norvik.CargaGramatica(u"S -> a" + repite(u"|a", 999) + u";"));
    EXPECT_EQ(a.norvik.Gramatica().getNumReglas(), 1000);
    EXPECT_TRUE(a.norvik.CargaGramatica(repite(u"ExpReg a=\"x\";", 2500)));
    EXPECT_EQ(a.norvik.Lexico().expresionesRegulares().size(), 2500U);
    EXPECT_TRUE(a.norvik.CargaGramatica(repite(u" ", 32766)));
    EXPECT_THROW(a.norvik.CargaGramatica(repite(u" ", 32767)), Desbordamiento);
    EXPECT_TRUE(a.enReposo());
    EXPECT_THROW(a.norvik.CargaGramatica(repite(u"S->a;", 1001)), SubindiceFueraDeIntervalo);
    EXPECT_TRUE(a.enReposo());
    EXPECT_TRUE(a.compila(u"Token x = \"x\"; S -> x;"));
    EXPECT_TRUE(a.analiza(u"x"));
}

TEST(CompilaArbolEspecificacion, DevuelveElCuerpoQueElNodoEs) {
    Anfitrion a;
    EXPECT_TRUE(a.norvik.CargaGramatica(u"S -> a b | Ø | c;"));
    Arbol& raiz = a.norvik.GetArbolSintactico();
    gramatica g;
    pilaTokens lexico;
    const auto compila = [&](Arbol& nodo) { return CompilaArbolEspecificacion(nodo, g, lexico, a.sistema); };
    EXPECT_EQ(compila(*raiz.GetDescendienteConRegla(22)), u"a b | Ø | c");
    EXPECT_EQ(compila(*raiz.GetDescendienteConRegla(24)), u" | Ø | c");
    EXPECT_EQ(compila(*raiz.GetDescendienteConRegla(26)), u"a b");
    EXPECT_EQ(compila(*raiz.GetDescendienteConRegla(27)), u" b");
    EXPECT_EQ(g.getNumReglas(), 0);
    EXPECT_EQ(compila(raiz), u"");
    EXPECT_EQ(g.getNumReglas(), 3);
}
