// SPDX-License-Identifier: MIT

#include "apoyoGramatica.hpp"

#include "norvik/base/errores.hpp"

#include <gtest/gtest.h>

using namespace norvik;

namespace {

TEST(Reglas, UnaPorAlternativa) {
    const std::pair<std::u16string, std::u16string> casos[] = {
        {u"a B | c", u"[a B][c]"},          {u"x |", u"[x]"},    {u"| x", u"[][x]"}, {u"", u"[]"},
        {u"  a  b|  |c  ", u"[a  b][][c]"}, {u"a | |", u"[a][]"}};
    for (const auto& [cuerpo, esperado] : casos) {
        gramatica g;
        g.SetRegla(u"A", cuerpo);
        std::u16string reglas;
        for (std::int16_t r = 1; r <= g.getNumReglas(); ++r)
            reglas += u"[" + std::u16string(g.GetRightRegla(r)) + u"]";
        EXPECT_EQ(reglas, esperado) << aUtf8(cuerpo);
    }
}

TEST(Reglas, ElementosDeUnCuerpo) {
    const std::tuple<std::u16string, int, std::u16string, std::u16string, std::u16string> casos[] = {
        {u"a B c", 3, u"a", u"B", u"c"}, {u"Ø", 0, u"Ø", u"Ø", u"Ø"},   {u"", 0, u"", u"", u""},
        {u"a Ø", 1, u"a", u"Ø", u"Ø"},   {u"Ø a", 2, u"Ø", u"a", u"a"}, {u"a bØ", 2, u"a", u"bØ", u"bØ"},
        {u"a   b", 2, u"a", u"b", u"b"}};
    for (const auto& [cuerpo, elementos, primero, segundo, ultimo] : casos) {
        gramatica g;
        g.SetRegla(u"A", cuerpo);
        EXPECT_EQ(g.GetNumElementosRegla(1), elementos) << aUtf8(cuerpo);
        EXPECT_EQ(g.GetElementoRegla(1, -3), primero) << aUtf8(cuerpo);
        EXPECT_EQ(g.GetElementoRegla(1, 1), segundo) << aUtf8(cuerpo);
        EXPECT_EQ(g.GetElementoRegla(1, 32767), ultimo) << aUtf8(cuerpo);
    }
}

TEST(Reglas, CabenMil) {
    gramatica g;
    for (int i = 1; i < 1000; ++i) g.SetRegla(u"A", u"a");
    EXPECT_THROW(g.SetRegla(u"B", u"x | y"), SubindiceFueraDeIntervalo);
    EXPECT_EQ(g.getNumReglas(), 1000);
    EXPECT_EQ(g.GetRightRegla(1000), u"x");
    for (const auto regla : std::vector<std::int16_t>{-1, 0, 1001}) {
        EXPECT_THROW(g.GetLeftRegla(regla), SubindiceFueraDeIntervalo);
        EXPECT_THROW(g.GetRightRegla(regla), SubindiceFueraDeIntervalo);
        EXPECT_THROW(g.GetNumElementosRegla(regla), SubindiceFueraDeIntervalo);
        EXPECT_THROW(g.GetElementoRegla(regla, 0), SubindiceFueraDeIntervalo);
        EXPECT_THROW(g.GetCodigoVariable(regla), SubindiceFueraDeIntervalo);
    }
    g.inicializaGramatica();
    EXPECT_EQ(g.getNumReglas(), 0);
    EXPECT_EQ(g.GetLeftRegla(1000), u"");
}

TEST(Reglas, SimbolosYColumnas) {
    gramatica g;
    g.SetRegla(u"Expr", u"id");
    for (const auto* simbolo : {u"id", u"", u"Ñ", u"$", u"Expr", u"id"}) g.SetSimbolo(simbolo);
    EXPECT_EQ(g.simbolos().toStringConjunto(), u"id, Ñ, $, Expr");
    EXPECT_EQ(g.terminales().toStringConjunto(), u"id, Ñ, $");
    EXPECT_EQ(g.variables().toStringConjunto(), u"Expr");
    EXPECT_EQ(g.GetCodigoToken(u"EOF"), 2);
    EXPECT_EQ(g.GetCodigoToken(u"id"), 0);
    EXPECT_EQ(g.GetCodigoToken(u"otro"), -1);
    EXPECT_EQ(g.GetCodigoVariable(1), 3);
    EXPECT_EQ(g.GetCodigoVariable(2), -1);
    g.SetRegla(u"B", u"id");
    g.SetSimbolo(u"B");
    EXPECT_EQ(g.GetCodigoVariable(2), 4);
}

TEST(Reglas, BuscaUnSimboloEnElTexto) {
    const std::pair<std::u16string, int> casos[] = {{u"a B c", 3},    {u"a BB c", 0}, {u"a B", 3},
                                                    {u"B", 1},        {u"BB B", 4},   {u"a BB B", 0},
                                                    {u"a BB B c", 6}, {u"aB B", 4}};
    for (const auto& [cuerpo, posicion] : casos)
        EXPECT_EQ(gramatica::estaEnRegla(cuerpo, u"B"), posicion) << aUtf8(cuerpo);
}

TEST(Reglas, PuntoEnUnCuerpo) {
    const std::tuple<std::u16string, std::int16_t, std::u16string> casos[] = {{u"a B c", 0, u".a B c"},
                                                                              {u"a  B c", 1, u"a.B c"},
                                                                              {u"a B c", 3, u"a B c."},
                                                                              {u"a B c", 4, u"a B c"},
                                                                              {u"Ø", 0, u".Ø"},
                                                                              {u"Ø", 1, u"Ø."},
                                                                              {u"", 0, u"."}};
    for (const auto& [cuerpo, punto, texto] : casos)
        EXPECT_EQ(gramatica::dameReglaString(cuerpo, punto), texto);
}

TEST(Reglas, NombraLaUltimaVariableSinRegla) {
    EXPECT_EQ(gramaticaDe(u"S -> a C; C -> c ñ")->chequeaGramatica(), u"");
    EXPECT_EQ(gramaticaDe(u"S -> X a B; C -> c; C ->")->chequeaGramatica(),
              u"La variable B definida en la parte derecha de la regla S no está definida.");
}

} // namespace
