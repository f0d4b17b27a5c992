// SPDX-License-Identifier: MIT

#include "apoyoGramatica.hpp"

#include "norvik/base/errores.hpp"

#include <gtest/gtest.h>

using namespace norvik;

namespace {

// Worked out by hand, step by step.
const std::vector<std::tuple<const char*, std::u16string, std::u16string, std::u16string, std::u16string>>
    casosAMano = {
        {"recursiva por la izquierda", u"E -> E + T; E -> T; T -> id", u"T{id} E{id}", u"E{$, +} T{$, +}",
         u"E{id} E{id} T{id}"},
        {"Ø se queda aunque lo que sigue no sea anulable", u"S -> A b; A -> a; A -> Ø", u"A{a, Ø} S{a, Ø, b}",
         u"S{$} A{b}", u"S{a, b, $} A{a} A{b}"},
        {"cabeza en dos tramos", u"A -> a; B -> b; A -> c", u"A{a} B{b} A{c}", u"A{$} B{} A{}",
         u"A{a} B{b} A{c}"},
        {"un nombre empieza como otro", u"S -> a BB B; B -> b; BB -> c", u"S{a} B{b} BB{c}",
         u"S{$} B{} BB{b}", u"S{a} B{b} BB{c}"},
        {"acaba antes que los conjuntos de que depende", u"A -> B x; A -> y; B -> A w; B -> z",
         u"A{z, y} B{z, y}", u"A{$, w} B{x}", u"A{z, y} A{y} B{z, y} B{z}"},
        {"acaba con Ø solo", u"A -> A b; A -> Ø", u"A{Ø}", u"A{$, b}", u"A{b, $} A{$, b}"},
        {"Ø antes de la recursión", u"A -> Ø; A -> A b", u"A{Ø, b}", u"A{$, b}", u"A{$, b} A{b, $}"},
        {"Ø entre otros símbolos", u"S -> Ø a | b", u"S{Ø, a, b}", u"S{$}", u"S{a, $} S{b}"},
        {"cuerpo vacío", u"S -> a S | ", u"S{a}", u"S{$}", u"S{a}"},
        {"alternativa vacía", u"S -> | a S", u"S{Ø, a}", u"S{$}", u"S{$} S{a}"},
        {"ninguna pasada acaba un conjunto", u"A -> B x; B -> z; B -> A y", u"A{z} B{z}", u"A{$, y} B{x}",
         u"A{z} B{z} B{z}"},
        {"la recursión no termina", u"S -> A a; A -> B b; B -> A c; B -> z", u"S{z} A{z} B{z}",
         u"S{$} A{a, c} B{b}", u"S{z} A{z} B{z} B{z}"},
        {"dos tramos, el segundo acaba antes", u"A -> B x; B -> z; B -> A y; A -> Ø",
         u"A{Ø} B{z, Ø, y} A{z, Ø, y, x}", u"A{$, y} B{x} A{y}", u"A{z, y, x, $} B{z} B{y, x} A{$, y}"},
        {"dos tramos sin fin", u"A -> B x; B -> z; B -> A y; A -> B w", u"A{z} B{z}", u"A{$, y} B{x, w} A{y}",
         u"A{z} B{z} B{z} A{z}"},
        {"los ciclos se cortan", u"S -> A a | B b; A -> x B; B -> y A | z", u"A{x} B{y, z} S{x, y, z}",
         u"S{$} A{a, b} B{b, a}", u"S{x} S{y, z} A{x} B{y} B{z}"},
        {"cabeza en minúscula", u"expr -> a expr | b", u"expr{a, b}", u"expr{$}", u"expr{a} expr{b}"},
};

TEST(Conjuntos, GramaticasAMano) {
    for (const auto& [nombre, reglas, primeros, siguientes, predict] : casosAMano) {
        const auto g = gramaticaDe(reglas);
        g->creaConjuntos();
        EXPECT_EQ(aUtf8(enTexto(g->primeros())), aUtf8(primeros)) << nombre;
        EXPECT_EQ(aUtf8(enTexto(g->siguientes())), aUtf8(siguientes)) << nombre;
        EXPECT_EQ(aUtf8(enTexto(g->predict())), aUtf8(predict)) << nombre;
        EXPECT_FALSE(g->quedanPrimerosPendientes() || g->quedanSiguientesPendientes()) << nombre;
    }
}

TEST(Conjuntos, PorNombre) {
    const auto g = gramaticaDe(u"S -> A b; A -> a; A -> Ø");
    g->inicializaConjuntos();
    EXPECT_TRUE(g->quedanPrimerosPendientes() && g->estaPendientePrimeros(u"A"));
    g->creaConjuntos();
    EXPECT_EQ(g->numItemPrimeros(u"S"), 2);
    conjunto primeros;
    for (const std::int16_t fuera : {std::int16_t{-1}, std::int16_t{4}})
        EXPECT_THROW(g->creaPrimeros(u"A b", primeros, false, fuera), SubindiceFueraDeIntervalo) << fuera;
    EXPECT_EQ(g->numItemSiguientes(u"A"), 2);
    EXPECT_EQ(g->numItemPrimeros(u"X"), 0);
    EXPECT_TRUE(g->estaPendienteSiguientes(u"X"));
    EXPECT_TRUE(g->contieneCadenaVacia(u"A") && !g->contieneCadenaVacia(u"S"));
    conjunto conj;
    g->creaPrimeros(u" A  b c", conj, false, 0);
    g->creaSiguientes(u"S", conj, true);
    EXPECT_EQ(conj.toStringConjunto(), u"a, Ø, b, $");
    EXPECT_THROW(g->creaPrimeros(u"X b", conj, false, 0), SubindiceFueraDeIntervalo);
}

TEST(Conjuntos, UnaVariableSinReglaNoDejaNadaAMedias) {
    const auto g = generada(u"S -> a");
    g->SetRegla(u"S", u"b S X c");
    EXPECT_THROW(g->creaConjuntos(), SubindiceFueraDeIntervalo);
    EXPECT_TRUE(g->primeros().empty() && g->estadosAutomata().empty());
    EXPECT_EQ(g->GetDimensionFilasSLR(), 0);
    g->SetRegla(u"X", u"d");
    genera(*g);
    EXPECT_EQ(enTexto(g->siguientes()), u"S{$, d} X{c}");
}

} // namespace
