// SPDX-License-Identifier: MIT

#include "grammar/apoyoGramatica.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/report/identificadorCpp.hpp"

#include <gtest/gtest.h>

#include <string_view>
#include <unordered_set>
#include <utility>

using namespace norvik;

namespace {

TEST(Informe, EnteroDeUnaRegla) {
    const std::u16string raya = std::u16string(48, u'-') + u"\n";
    const std::u16string barras = std::u16string(110, u'/') + u"\n";
    const std::u16string esperado =
        u"Informe sobre la gramática actual:\n\n\nReglas de la Gramática:\n\n1.\tS -> a\n\n\n" + raya +
        u"\n\nConjuntos Primeros:\n\nPRIMEROS(S) = {a}\n\n\n" + raya +
        u"\n\nConjuntos Siguientes:\n\nSIGUIENTES(S) = {$}\n\n\n" + raya +
        u"\nConjuntos Predict:\n\nPREDICT(S -> a)  =  {a}\n\n\n"
        u"(NOTA: El símbolo 'Ø' representa la cadena vacía)\n\n" +
        barras +
        u"\nEspecificación del automata:\n\n\n"
        u"Estado 0:\n\n    S' -> .S\n    S -> .a\nTransiciones:\n    S -> 1\n    a -> 2\n" +
        raya + u"\nEstado 1:\n\n    S' -> S.\n" + raya + u"\nEstado 2:\n\n    S -> a.\n" + raya + u"\n" +
        barras +
        u"\n\n//Tabla SLR:\n\n//A continuación se hace un inciso acerca de qué símbolos pertenecen a\n"
        u"//cada índice j (siendo la dimensión tipo [i][j]) de la tabla SLR detallada.\n\n"
        u"//Simbolos:\ncolumna 0 = a\ncolumna 1 = $\ncolumna 2 = S\n\n"
        u"//Tabla: (Desplazamientos: números positivos. Reducciones: números negativos)\n"
        u"    tablaSLR[0][2] = 1\n    tablaSLR[1][1] = ACEPTAR\n"
        u"    tablaSLR[0][0] = 2;\n    tablaSLR[2][1] = -1;\n" +
        barras;
    EXPECT_EQ(aUtf8(generada(u"S -> a")->textoInforme()), aUtf8(normalizaLineas(esperado)) + "\r\n");
}

TEST(Informe, CuerposVaciosComoSeGuardaron) {
    const auto g = generada(u"S -> | A b; A -> Ø");
    const std::u16string texto = g->textoInforme();
    for (const std::u16string linea :
         {u"1.\tS -> \r\n", u"3.\tA -> Ø\r\n", u"PREDICT(S -> )  =  {$}\r\n",
          u"    S -> .\r\n    S -> .A b\r\n    A -> .\r\n", u"PREDICT(A -> Ø)  =  {b}\r\n"})
        EXPECT_NE(texto.find(linea), std::u16string::npos) << aUtf8(linea);
    EXPECT_TRUE(
        g->textoInformeGeneral().ends_with(u"Símbolos terminales: b\r\nSímbolos no terminales: S, A\r\n"
                                           u"(NOTA: El símbolo 'Ø' representa la cadena vacía)\r\n"));
}

TEST(Informe, CeldasYProblemas) {
    const auto g = generada(u"S -> A b; A -> a b; A -> a; A -> a");
    EXPECT_EQ(g->celdaTabla(1, 4), u"1");
    EXPECT_EQ(g->celdaTabla(2, 3), u"ACEPTAR");
    EXPECT_EQ(g->celdaTabla(1, 2), u"D4");
    EXPECT_EQ(g->celdaTabla(1, 5), u"2");
    EXPECT_EQ(g->celdaTabla(5, 1), u"D5 / R4");
    EXPECT_EQ(g->celdaTabla(6, 1), u"R2");
    EXPECT_EQ(g->celdaTabla(6, 2), u"");
    EXPECT_NE(g->textoInforme().find(u"\r\ntablaSLR[4][0]= D5 / R4;\r\n"), std::u16string::npos);
    for (const auto& [reglas, mensaje] : std::vector<std::pair<std::u16string, std::u16string>>{
             {u"S -> a", u"La gramática carece de problema alguno."},
             {u"S -> A b; A -> a b; A -> a",
              u"Problemas detectados:\r\n\r\nConflicto D5 / R3 en el estado 4, símbolo b.\r\n"},
             {u"S -> a; S -> a; S -> a",
              u"Problemas detectados:\r\n\r\nConflicto R1 / R3 en el estado 2, símbolo $.\r\n"},
             // The only entry of the row stands in the last column, which is not looked at.
             {u"S -> S", u"Problemas detectados:\r\n\r\nLa fila 0 de la tabla SLR correspondiente al "
                         u"estado 0 del automata no posee ni desplazamientos ni reducciones.\r\n"},
         }) {
        EXPECT_EQ(aUtf8(generada(reglas)->textoProblemas()), aUtf8(mensaje)) << aUtf8(reglas);
    }
}

TEST(Modulo, EnteroDeUnaRegla) {
    pilaTokens lexico;
    lexico.SetER(u"a\"[^\"]*", u"a", true, false, u"una a", Norvik_Numero, Norvik_BaseDecimal, sinColor);
    const std::u16string raya = u"'" + std::u16string(110, u'/') + u"\n";
    const std::u16string esperado =
        u"Attribute VB_Name = \"Calc\"\nOption Explicit\n" + raya +
        u"' Módulo de carga del lenguaje Calc\n'\n'\tpara ejecutar escriba "
        u"Calc.CargaLenguaje(NorvikControl)\n"
        u"'\tsiendo NorvikControl en control Norvik donde desea inyectar el lenguaje.\n'\n" +
        raya +
        u"\nPublic Sub CargaLenguaje(NorvikRefParam As Norvik)\n\n"
        u"\t'Esta función carga la tabla SLR en un control Norvik\n"
        u"\t'que ha sido pasado por referencia como parámetro.\n\n"
        u"\tCalc.CargaTokensLenguaje NorvikRefParam\n\tCalc.CargaGramaticaLenguaje NorvikRefParam\n"
        u"\tNorvikRefParam.SetDimensionTablaSLR 3, 3\n\n"
        u"\tNorvikRefParam.SetElementoTablaSLR 2, 2, 1000\n\tNorvikRefParam.SetElementoTablaSLR 1, 3, 1\n"
        u"\tNorvikRefParam.SetElementoTablaSLR 1, 1, 2\n\tNorvikRefParam.SetElementoTablaSLR 3, 2, -1\n\n"
        u"\tNorvikRefParam.InsertarSimboloGramatica \"a\"\n\tNorvikRefParam.InsertarSimboloGramatica \"$\"\n"
        u"\tNorvikRefParam.InsertarSimboloGramatica \"S\"\n\nEnd Sub\n\n"
        u"\nPublic Sub CargaTokensLenguaje(NorvikRefParam As Norvik)\n\n"
        u"\n'Función para cargar las definiciones léxicas de los tokens del lenguaje:\n\n"
        u"\tNorvikRefParam.SetER \"a\" & Chr$(34) & \"[^\" & Chr$(34) & \"]*\", \"a\", True, 7, \"una a\", "
        u"10, " +
        aTexto(lexico.getTokenLenguaje(1).GetColor()) +
        u"\n\nEnd Sub\n\n\n"
        u"\nPublic Sub CargaGramaticaLenguaje(NorvikRefParam As Norvik)\n\n"
        u"\n'Función para cargar las reglas del lenguaje Calc\n\n\tNorvikRefParam.SetRegla \"S -> a\"\n\n"
        u"End Sub\n\n\n";
    EXPECT_EQ(aUtf8(generada(u"S -> a")->textoModulo(u"Calc", lexico)),
              aUtf8(normalizaLineas(esperado)) + "\r\n");
}

TEST(Modulo, SeParteCadaDosMilEntradas) {
    const auto procedimientos = [](int filas, int columnas) {
        gramatica g;
        g.SetRegla(u"S", u"a");
        g.SetDimensionTablaSLR(static_cast<std::int16_t>(filas), 2001);
        for (int i = 0; i < 2001; ++i) g.SetSimbolo(u"t" + aTexto(i));
        for (int c = 1; c <= columnas; ++c) g.SetElementoTablaSLR(1, static_cast<std::int16_t>(c), 1);
        const std::u16string texto = g.textoModulo(u"M", pilaTokens());
        int total = 0;
        for (std::size_t i = texto.find(u"CargaLenguaje1"); i != std::u16string::npos;
             i = texto.find(u"CargaLenguaje1", i + 1))
            ++total;
        return total;
    };
    EXPECT_EQ(procedimientos(2, 2000), 0);
    EXPECT_EQ(procedimientos(2, 2001), 2);
}

TEST(Modulo, EnCppLosTextosSonAscii) {
    pilaTokens lexico;
    lexico.SetER(u"\"\\?ñ\n", u"año", true, false, u"", Norvik_ExpReg, Norvik_SinBase, sinColor);
    const std::u16string texto = generada(u"S -> año")->textoModuloCpp(u"Cálculo", lexico);
    const std::u16string esperado =
        uR"(// Lenguaje C\u00E1lculo. En un control: C\u00E1lculo::CargaLenguaje(control). Un control que
// tiene otro lenguaje necesita antes control.OlvidaLenguaje(). Como valor: C\u00E1lculo::lenguaje().
#pragma once

#include "norvik/spec/datosLenguaje.hpp"
#include "norvik/spec/lenguaje.hpp"

namespace C\u00E1lculo {

// Los numeros que llevan los nodos de los arboles. E_1 es la primera regla de E. En un nombre,
// _uHHHH es un caracter que C++ no admite ahi, por su numero; acaba en _ el que C++ reserva.
enum class Token : short {
    a\u00F1o = 1,
};

enum class Variable : short {
    S = 1,
};

enum class Regla : short {
    S_1 = 1,
};

namespace tablas {
using namespace std::string_view_literals;
inline constexpr norvik::DatosLenguaje::Definicion definiciones[] = {
    {u"\"\\\?\u00F1\012"sv, u"a\u00F1o"sv, 0, u""sv, 0, -1},
};
inline constexpr std::u16string_view reglas[] = {
    u"S -> a\u00F1o"sv,
};
inline constexpr norvik::CeldaSLR celdas[] = {
    {2, 2, 1000},
    {1, 3, 1},
    {1, 1, 2},
    {3, 2, -1},
};
inline constexpr std::u16string_view simbolos[] = {
    u"a\u00F1o"sv,
    u"$"sv,
    u"S"sv,
};
} // namespace tablas

inline constexpr norvik::DatosLenguaje datos{
    tablas::definiciones, tablas::reglas, 3, 3, tablas::celdas, tablas::simbolos};

inline void CargaLenguaje(norvik::CargadorLenguaje& control) {
    norvik::CargaLenguaje(datos, control);
}

inline const norvik::Lenguaje& lenguaje() {
    static const norvik::Lenguaje unico = norvik::Lenguaje::de(datos);
    return unico;
}

} // namespace C\u00E1lculo
)";
    EXPECT_EQ(aUtf8(texto), aUtf8(normalizaLineas(esperado)) + "\r\n");
    const std::u16string vacio = gramatica().textoModuloCpp(u"V", pilaTokens());
    EXPECT_NE(vacio.find(u"enum class Regla : short {\r\n};"), std::u16string::npos) << aUtf8(vacio);
    EXPECT_NE(vacio.find(u"{}, {}, 0, 0, {}, {}};"), std::u16string::npos) << aUtf8(vacio);
    EXPECT_EQ(vacio.find(u"[]"), std::u16string::npos) << aUtf8(vacio);
}

// Each name has its own identifier, and none is one that C++ reserves.
TEST(Modulo, EnCppCadaNombreTieneSuIdentificador) {
    const std::pair<std::u16string_view, std::string_view> casos[] = {
        {u"num", "num"},
        {u"a1_b", "a1_b"},
        {u"año", "a\\u00F1o"},
        {u"class", "class_"},
        {u"class_", "class_u005F"},
        {u"EOF", "EOF_"},
        {u"linux", "linux_"},
        {u"", "_"},
        {u"_", "_u005F"},
        {u"_A", "_u005FA"},
        {u"a__b", "a_u005F_b"},
        {u"a_\u03B1", "a_u005F_u03B1"},
        {u"a_u005Fb", "a_u005Fu005Fb"},
        {u"a_u005", "a_u005"},
        {u"a_u005f", "a_u005f"},
        {u"a b", "a_u0020b"},
        {u"1a", "_u0031a"},
        {u"×\u00F7", "_u00D7_u00F7"},
        {u"\U0001F600", "_uD83D_uDE00"},
    };
    for (const auto& [nombre, identificador] : casos)
        EXPECT_EQ(aUtf8(identificadorCpp(nombre)), identificador) << aUtf8(nombre);
    EXPECT_EQ(aUtf8(identificadorCpp(u"E", 11)), "E_11");
    EXPECT_EQ(aUtf8(identificadorCpp(u"E_1", 1)), "E_1_1");
    EXPECT_EQ(aUtf8(identificadorCpp(u"E_", 1)), "E_u005F_1");
}

// All names of a few characters that mean something in identifiers.
TEST(Modulo, EnCppNoHayDosNombresConUnIdentificador) {
    std::unordered_set<std::u16string> simbolos;
    std::unordered_set<std::u16string> reglas;
    for (int n = 0; n < 6 * 6 * 6 * 6 * 6 * 6 * 2; ++n) {
        std::u16string nombre;
        for (int resto = n; resto > 0; resto = (resto - 1) / 6) nombre += u"_u05F "[(resto - 1) % 6];
        const std::u16string simbolo = identificadorCpp(nombre);
        EXPECT_TRUE(simbolos.insert(simbolo).second) << aUtf8(simbolo);
        EXPECT_TRUE(reglas.insert(identificadorCpp(nombre, 5)).second) << aUtf8(simbolo);
        EXPECT_EQ(simbolo.find(u"__"), std::u16string::npos) << aUtf8(simbolo);
    }
}

} // namespace
