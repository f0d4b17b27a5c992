// SPDX-License-Identifier: MIT

#include "grammar/apoyoGramatica.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/conductor.hpp"
#include "norvik/parser/lectorTokens.hpp"

#include <gtest/gtest.h>

using namespace norvik;

namespace {

// Lower-case letters, one token each; numbers, strings, and words of capitals.
struct LenguajePequenio {
    std::unique_ptr<gramatica> reglas;
    pilaTokens lexico;
    TextoInvisible editor;
    LectorTokens lector{lexico, editor};
    ConductorSLR conductor;
    std::vector<Mensaje> mensajes;

    explicit LenguajePequenio(std::unique_ptr<gramatica> g)
        : reglas(std::move(g)), conductor(lector, lexico, *reglas) {
        conductor.alFallar = [this](const Mensaje& mensaje) { mensajes.push_back(mensaje); };
        for (char16_t c = u'a'; c <= u'h'; ++c) token({&c, 1}, {&c, 1}, u"", Norvik_ExpReg);
        token(u"[0-9]+", u"num", u"número", Norvik_Numero);
        token(u"\"[^\"]*\"", u"cadena", u"", Norvik_Cadena);
        token(u"[A-Z]+", u"palabra", u"", Norvik_ExpReg);
    }
    void token(std::u16string_view patron, std::u16string_view nombre, std::u16string_view pseudo,
               std::int16_t tipo) {
        lexico.SetER(patron, nombre, true, true, pseudo, tipo, 0, sinColor);
    }
    bool analiza(std::u16string_view texto) {
        editor.ponTexto(texto);
        return conductor.ConstruyeArbolSintactico();
    }
    bool analizaInvisible(std::u16string_view texto) {
        lector.textoInvisible().ponTexto(texto);
        return conductor.ConstruyeArbolSintacticoTextoInvisible();
    }
    std::u16string arbol() { return conductor.GetArbolSintactico().toString(); }
};

TEST(Conductor, UnTextoAceptadoDaSuArbol) {
    const std::tuple<std::u16string, std::u16string, std::u16string> casos[] = {
        {u"S -> a b", u"a\r\n b", u"S -> a b [1]\n  'a' (1, 1)\n  'b' (2, 2)\n"},
        {u"S -> Ø", u"", u"S -> Ø [1]\n"},
        {u"S -> A b A; A -> Ø; A -> a", u"b a",
         u"S -> A b A [1]\n  A -> Ø [2]\n  'b' (1, 1)\n  A -> a [3]\n    'a' (1, 3)\n"},
        {u"E -> E a T | T; T -> num", u"1a22a3",
         u"E -> E a T [1]\n  E -> E a T [1]\n    E -> T [2]\n      T -> num [3]\n        '1' (1, 1)\n"
         u"    'a' (1, 2)\n    T -> num [3]\n      '22' (1, 3)\n  'a' (1, 5)\n  T -> num [3]\n"
         u"    '3' (1, 6)\n"},
        {u"S -> cadena palabra", u"\"ab\" EOF", u"S -> cadena palabra [1]\n  'ab' (1, 1)\n  'EOF' (1, 6)\n"},
        // A shift of the end of the text makes no leaf: what stands before it in the trace does.
        {u"S -> a $", u"a", u""},
        {u"S -> A $; A -> a", u"a", u"S -> A $ [1]\n  'a' (1, 1)\n  '2' (0, 0)\n"},
    };
    for (const auto& [reglas, texto, arbol] : casos) {
        LenguajePequenio lenguaje(generada(reglas));
        if (arbol.empty()) {
            EXPECT_THROW(lenguaje.analiza(texto), IndiceNoValido) << aUtf8(reglas);
            EXPECT_EQ(lenguaje.arbol(), u"'' (0, 0)\n");
            continue;
        }
        EXPECT_TRUE(lenguaje.analiza(texto)) << aUtf8(reglas);
        EXPECT_EQ(lenguaje.arbol(), arbol) << aUtf8(reglas);
        EXPECT_EQ(lenguaje.conductor.GetCodigoError(), sinError);
        EXPECT_EQ(lenguaje.conductor.traza().numElementosTraza(), 0U);
        EXPECT_TRUE(lenguaje.mensajes.empty());
    }
}

TEST(Conductor, ElPrimerErrorAcabaElAnalisis) {
    const std::tuple<std::u16string, std::u16string, std::int16_t> casos[] = {
        {u"#", u"Error (Línea 1, Columna 1): caracter '#' incorrecto.", errorLexico},
        {u"a\r\nb 1\r\n  #", u"Error (Línea 3, Columna 3): caracter '#' incorrecto.", errorLexico},
        {u"a 1", u"Error: Se ha encontrado número (Línea 1, Columna 3). Se esperaba 'b'.", errorSintactico},
        {u"a\r\n", u"Error: Se ha encontrado el final del fichero (Línea 2, Columna 1). Se esperaba 'b'.",
         errorSintactico},
        {u"a b 1 1", u"Error: Se ha encontrado número (Línea 1, Columna 7). Se esperaba .", errorSintactico},
        {u"a h", u"Error: Se ha encontrado 'h' (Línea 1, Columna 3). Se esperaba 'b'.", errorSintactico},
    };
    LenguajePequenio lenguaje(generada(u"S -> a b T; T -> num"));
    for (const auto& [texto, mensaje, codigo] : casos) {
        lenguaje.mensajes.clear();
        for (const bool invisible : {false, true}) {
            EXPECT_FALSE(invisible ? lenguaje.analizaInvisible(texto) : lenguaje.analiza(texto));
            EXPECT_EQ(lenguaje.conductor.GetmensajeError(), mensaje);
            EXPECT_EQ(lenguaje.conductor.GetCodigoError(), codigo);
            EXPECT_EQ(lenguaje.arbol(), u"'' (0, 0)\n");
        }
        const bool lexico = codigo == errorLexico;
        const Mensaje aviso{mensaje, lexico ? u"ERROR Léxico" : u"ERROR de Sintaxis", Icono::Exclamacion,
                            Botones::Aceptar};
        EXPECT_EQ(lenguaje.mensajes, (std::vector<Mensaje>{aviso, aviso}));
    }
    EXPECT_TRUE(lenguaje.analiza(u"a b\r\n 7"));
    EXPECT_EQ(lenguaje.arbol(),
              u"S -> a b T [1]\n  'a' (1, 1)\n  'b' (1, 3)\n  T -> num [2]\n    '7' (2, 2)\n");
    EXPECT_EQ(lenguaje.conductor.GetmensajeError(), u"");
    EXPECT_TRUE(lenguaje.analizaInvisible(u"a b\r\n 7"));
    EXPECT_EQ(lenguaje.arbol(),
              u"S -> a b T [1]\n  'a' (0, 0)\n  'b' (0, 0)\n  T -> num [2]\n    '7' (0, 0)\n");
}

TEST(Conductor, LosNombresDeDefinicionQueUsaElLectorValenComoTales) {
    LenguajePequenio lenguaje(generada(u"S -> a"));
    lenguaje.token(u"!", tokenFin, u"", Norvik_ExpReg);
    lenguaje.token(u"\\?", tokenError, u"", Norvik_ExpReg);
    EXPECT_TRUE(lenguaje.analiza(u"a!"));
    EXPECT_FALSE(lenguaje.analiza(u"a?"));
    EXPECT_EQ(lenguaje.conductor.GetmensajeError(), u"Error (Línea 1, Columna 2): caracter '?' incorrecto.");
}

TEST(Conductor, UnLenguajeCambiadoNoSeConfundeConElAnterior) {
    LenguajePequenio lenguaje(generada(u"S -> A; A -> B; B -> a"));
    ASSERT_TRUE(lenguaje.analiza(u"a"));
    lenguaje.reglas->inicializaGramatica();
    lenguaje.reglas->SetRegla(u"S", u"B");
    lenguaje.reglas->SetRegla(u"B", u"a");
    genera(*lenguaje.reglas);
    EXPECT_TRUE(lenguaje.analiza(u"a"));
    EXPECT_EQ(lenguaje.arbol(), u"S -> B [1]\n  B -> a [2]\n    'a' (1, 1)\n");
    lenguaje.lexico.Inicializa();
    lenguaje.token(u"a", u"b", u"", Norvik_ExpReg);
    lenguaje.token(u"b", u"a", u"", Norvik_ExpReg);
    EXPECT_FALSE(lenguaje.analiza(u"a"));
    EXPECT_TRUE(lenguaje.analiza(u"b"));
}

TEST(Conductor, UnAnalisisDesdeElAvisoDeErrorEsPosible) {
    LenguajePequenio lenguaje(generada(u"S -> a"));
    lenguaje.conductor.alFallar = [&](const Mensaje&) { EXPECT_TRUE(lenguaje.analiza(u"a")); };
    EXPECT_FALSE(lenguaje.analiza(u"b"));
    EXPECT_EQ(lenguaje.arbol(), u"S -> a [1]\n  'a' (1, 1)\n");
}

TEST(Conductor, AguantaLaMayorProfundidad) {
    LenguajePequenio lenguaje(generada(u"S -> a S b | c"));
    const std::size_t n = 16382;
    EXPECT_TRUE(lenguaje.analiza(std::u16string(n, u'a') + u"c" + std::u16string(n, u'b')));
    Arbol* nodo = &lenguaje.conductor.GetArbolSintactico();
    std::size_t profundidad = 0;
    for (; nodo->GetNumHijos() == 3; nodo = nodo->GetHijo(2)) ++profundidad;
    EXPECT_EQ(profundidad, n);
    lenguaje.conductor.GetArbolSintactico().Inicializa();
    EXPECT_THROW(lenguaje.analiza(std::u16string(32767, u'a')), Desbordamiento);
    EXPECT_TRUE(lenguaje.analiza(u"acb"));
}

struct CeldaSLR {
    std::int16_t fila, columna, valor;
};

// «S -> a» and «A -> Ø», columns a, $, S, A, with a table written by hand.
std::unique_ptr<gramatica> tablaAMano(std::int16_t filas, const std::vector<CeldaSLR>& celdas) {
    auto g = gramaticaDe(u"S -> a;A -> Ø");
    for (const auto* const simbolo : {u"a", u"$", u"S", u"A"}) g->SetSimbolo(simbolo);
    g->SetDimensionTablaSLR(filas, 4);
    for (const auto& [fila, columna, valor] : celdas) g->SetElementoTablaSLR(fila, columna, valor);
    return g;
}

TEST(Conductor, UnaTablaDaniadaAcabaEnUnFallo) {
    const std::vector<CeldaSLR> ajenas[] = {
        {{1, 1, 77}},             // a state that the table lacks
        {{1, 1, -900}},           // a rule without text
        {{1, 1, -2000}},          // a rule beyond all tables
        {{1, 1, 2}, {3, 2, 999}}, // shift to a state, then to none
    };
    for (const auto& celdas : ajenas) {
        LenguajePequenio lenguaje(tablaAMano(3, celdas));
        EXPECT_THROW(lenguaje.analiza(u"a"), SubindiceFueraDeIntervalo) << celdas.front().valor;
        EXPECT_EQ(lenguaje.lector.ultimoToken(), celdas.front().valor > 0 ? u"EOF" : u"a");
        EXPECT_EQ(lenguaje.arbol(), u"'' (0, 0)\n");
    }
    LenguajePequenio minimo(tablaAMano(3, {{1, 1, -32768}}));
    EXPECT_THROW(minimo.analiza(u"a"), Desbordamiento);
    LenguajePequenio vacio(tablaAMano(3, {{1, 2, 1000}}));
    EXPECT_THROW(vacio.analiza(u""), IndiceNoValido); // accepted without a single step
    LenguajePequenio pronto(tablaAMano(3, {{1, 1, 1}}));
    EXPECT_TRUE(pronto.analiza(u"a"));
    EXPECT_EQ(pronto.arbol(), u"'a' (1, 1)\n");
    LenguajePequenio sinTabla(gramaticaDe(u"S -> a"));
    EXPECT_FALSE(sinTabla.analiza(u"a"));
    sinTabla.reglas->SetDimensionTablaSLR(3, 0);
    EXPECT_FALSE(sinTabla.analiza(u"a"));
    EXPECT_EQ(sinTabla.conductor.GetmensajeError(),
              u"Error: Se ha encontrado 'a' (Línea 1, Columna 1). Se esperaba .");
}

TEST(Conductor, UnaTablaQueNoDejaDeReducirAcabaEnUnFallo) {
    LenguajePequenio lenguaje(tablaAMano(4, {{1, 1, -2}, {1, 4, 3}, {4, 1, -2}, {4, 4, 3}}));
    EXPECT_THROW(lenguaje.analiza(u"a"), Desbordamiento);
    lenguaje.reglas->SetElementoTablaSLR(1, 1, 2);
    lenguaje.reglas->SetElementoTablaSLR(3, 2, -1);
    EXPECT_TRUE(lenguaje.analiza(u"a"));
    // The end of the text, shifted again and again, must not take the time and memory of so many tokens.
    LenguajePequenio alFinal(tablaAMano(3, {{1, 2, 2}, {3, 2, 2}}));
    EXPECT_THROW(alFinal.analiza(u""), Desbordamiento);
    EXPECT_LT(alFinal.conductor.traza().numElementosTraza(), 100'000U);
}

TEST(Conductor, ElArbolSobreviveALaGramaticaYAlTexto) {
    LenguajePequenio lenguaje(generada(u"S -> palabra"));
    ASSERT_TRUE(lenguaje.analiza(u"UNA"));
    lenguaje.reglas->inicializaGramatica();
    lenguaje.lexico.Inicializa();
    lenguaje.editor.ponTexto(u"otro");
    EXPECT_EQ(lenguaje.arbol(), u"S -> palabra [1]\n  'UNA' (1, 1)\n");
}

} // namespace
