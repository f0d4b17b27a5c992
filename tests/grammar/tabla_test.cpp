// SPDX-License-Identifier: MIT

#include "apoyo/repite.hpp"
#include "apoyoGramatica.hpp"

#include "norvik/base/errores.hpp"

#include <gtest/gtest.h>

using namespace norvik;

namespace {

using apoyo::repite;

TEST(Tabla, GramaticasAMano) {
    for (const auto& [nombre, reglas, simbolos, esperada] :
         std::vector<std::tuple<const char*, std::u16string, std::u16string, std::u16string>>{
             {"una regla", u"S -> a", u"a, $, S", u"0: a=2 S=1; 1: $=1000; 2: $=-1"},
             {"inicial recursiva", u"E -> E + T; E -> T; T -> id", u"+, id, $, E, T",
              u"0: id=5 E=1 T=6; 1: +=3 $=1000; 2: +=3; 3: id=5 T=4; 4: +=-1 $=-1; 5: +=-3 $=-3; "
              u"6: +=-2 $=-2"},
             {"dos reglas iguales", u"S -> a; S -> a; S -> a", u"a, $, S",
              u"0: a=2 S=1; 1: $=1000; 2: $=-1/3"},
             {"el desplazamiento llega después y calla", u"S -> A b; A -> a; A -> a b", u"b, a, $, S, A",
              u"0: a=4 S=1 A=2; 1: $=1000; 2: b=3; 3: $=-1; 4: b=5; 5: b=-3"},
             {"el desplazamiento llega antes", u"S -> A b; A -> a b; A -> a", u"b, a, $, S, A",
              u"0: a=4 S=1 A=2; 1: $=1000; 2: b=3; 3: $=-1; 4: b=5/3; 5: b=-2"},
             {"regla vacía", u"S -> | a S b", u"a, b, $, S",
              u"0: a=2 b=-1 $=-1 S=1; 1: $=1000; 2: a=2 b=-1 $=-1 S=3; 3: b=4; 4: b=-2 $=-2"},
             {"la cabeza en dos tramos reduce dos veces", u"A -> a; B -> b; A -> A c", u"a, b, c, $, A, B",
              u"0: a=2 A=1; 1: c=3 $=1000; 2: c=-1/1 $=-1; 3: c=-3/3 $=-3"},
             {"regla de sí misma", u"S -> S; S -> a", u"a, $, S", u"0: a=3 S=1; 1: $=1000; 2: $=-1; 3: $=-2"},
         }) {
        const auto g = generada(reglas);
        EXPECT_EQ(g->simbolos().toStringConjunto(), simbolos) << nombre;
        EXPECT_EQ(aUtf8(enTexto(g->valores().tabla)), aUtf8(esperada)) << nombre;
    }
}

TEST(Tabla, LecturaYEscritura) {
    gramatica g;
    EXPECT_THROW(g.GetElementoTablaSLR(0, 0), SubindiceFueraDeIntervalo);
    g.SetRegla(u"S", u"a");
    g.SetDimensionTablaSLR(3, 4);
    g.SetElementoTablaSLR(1, 1, 5);
    g.SetElementoTablaSLR(1, 3, 7);
    g.SetElementoTablaSLR(2, 2, 9);
    for (const auto* simbolo : {u"a", u"$", u"S"}) g.SetSimbolo(simbolo);
    EXPECT_EQ(g.GetElementoTablaSLR(0, 0), 5);
    EXPECT_EQ(g.GetElementoTablaSLR(0, 2), 1);
    EXPECT_EQ(g.GetElementoTablaSLR(1, 1), gramatica::aceptar);
    EXPECT_EQ(g.GetElementoTablaSLR(2, 2), 0);
    for (const auto& [estado, columna] : std::vector<std::pair<std::int16_t, std::int16_t>>{
             {-1, 0}, {3, 0}, {32767, 0}, {0, -1}, {0, 3}, {0, 4}, {0, 32767}})
        EXPECT_THROW(g.GetElementoTablaSLR(estado, columna), SubindiceFueraDeIntervalo)
            << estado << ',' << columna;
    EXPECT_THROW(g.SetElementoTablaSLR(0, 1, 1), SubindiceFueraDeIntervalo);
    EXPECT_THROW(g.SetElementoTablaSLR(4, 1, 1), SubindiceFueraDeIntervalo);
    EXPECT_THROW(g.SetDimensionTablaSLR(-1, 3), SubindiceFueraDeIntervalo);
    EXPECT_EQ(g.GetDimensionFilasSLR(), 3);
}

TEST(Tabla, DimensionesDesmedidasNoOcupan) {
    gramatica g;
    g.SetDimensionTablaSLR(32767, 32767);
    g.SetElementoTablaSLR(32767, 32767, 1);
    EXPECT_EQ(g.GetDimensionColumnasSLR(), 32767);
    const auto llena = [&] {
        for (std::int16_t f = 1; f < 32767; ++f) g.SetElementoTablaSLR(f, 1, 1);
    };
    EXPECT_THROW(llena(), Desbordamiento);
}

TEST(Automata, LimitesDeEstadosYDeElementos) {
    EXPECT_EQ(generada(u"S -> " + repite(u"a ", 997))->GetDimensionFilasSLR(), 999);
    const auto g = generada(u"S -> a");
    g->SetRegla(u"S", repite(u"a ", 998));
    EXPECT_THROW(genera(*g), Desbordamiento);
    EXPECT_EQ(g->GetDimensionFilasSLR(), 0);
    EXPECT_TRUE(g->estadosAutomata().empty());
    EXPECT_THROW(generada(u"S -> a S" + repite(u"; S -> b", 999)), SubindiceFueraDeIntervalo);
}

std::u16string escalera(int niveles, bool porLaDerecha) {
    std::u16string reglas;
    for (int i = 0; i < niveles; ++i) {
        const std::u16string este = u"V" + aTexto(i);
        const std::u16string otro = u"V" + aTexto(i + 1);
        const std::u16string op = u" o" + aTexto(i) + u" ";
        reglas +=
            este + u" -> " + (porLaDerecha ? otro + op + este : este + op + otro) + u" | " + otro + u";";
    }
    return reglas + u"V" + aTexto(niveles) + u" -> id | ( V0 )";
}

// Plain readings of the recursions take 2^n calls here, or n^3 work.
TEST(Automata, EscalerasYPalabras) {
    for (const bool porLaDerecha : {true, false}) {
        EXPECT_EQ(generada(escalera(80, porLaDerecha))->GetDimensionFilasSLR(), porLaDerecha ? 246 : 247);
        const auto g = gramaticaDe(escalera(300, porLaDerecha));
        g->creaConjuntos();
        EXPECT_EQ(g->primeros().front().nombre, u"V300");
        EXPECT_EQ(g->primeros().back().toStringConjunto(), u"id, (");
    }
    std::u16string palabras;
    for (int i = 0; i < 900; ++i) palabras += u"S -> p" + aTexto(i) + u";";
    EXPECT_EQ(generada(palabras)->GetDimensionFilasSLR(), 902);
}

TEST(Automata, PasoAPaso) {
    const auto g = generada(u"E -> E + T; E -> T; T -> id");
    EXPECT_EQ(aUtf8(enTexto(g->valores().automata)),
              "0: 1.0>2 2.0>6 3.0>5\n1: 1.1>3\n2: 1.1>3\n3: 1.2>4 3.0>5\n4: 1.3>-1\n5: 3.1>-1\n6: 2.1>-1\n");
    estadoAutomata estado;
    EXPECT_EQ(estado.getNumEstado(), -1);
    g->aniadeReglaAEstado(u"E", estado);
    EXPECT_EQ(estado.getNumReglas(), 3);
    g->aniadeReglasImplicitasAEstado({{1, 2}, {3, 0}}, estado);
    EXPECT_EQ(estado.getNumReglas(), 4);
    EXPECT_TRUE(estado.poseeConjuntoEstados({{1, 2}, {3, 0}}) && estado.poseeConjuntoEstados({}));
    EXPECT_EQ(g->dameSimboloSiguiente(estado, 1), u"E");
    EXPECT_EQ(g->dameSimboloSiguiente(estado, 4), u"T");
    EXPECT_EQ(g->existeEstadoCon({{1, 2}}), 3);
    EXPECT_EQ(g->existeEstadoCon({{1, 0}, {1, 2}}), -1);
    estado.setTransicion({{1, 1}}, 8);
    EXPECT_EQ(estado.getEstadoAdyacente(1), 8);
    EXPECT_EQ(estado.getEstadoAdyacente(5), 0);
    EXPECT_THROW(estado.getReglaEstado(1001), SubindiceFueraDeIntervalo);
    g->inicializaConjuntos();
    estadoAutomata inicial;
    g->aniadeReglaAEstado(u"T", inicial);
    inicial.setNumEstado(7);
    g->construyeTransiciones(inicial);
    ASSERT_EQ(g->estadosAutomata().size(), 2U);
    EXPECT_EQ(g->estadosAutomata().back().getNumEstado(), 7);
}

TEST(Automata, UnaCadenaVaciaSueltaNoTieneColumna) {
    const auto g = gramaticaDe(u"S -> a Ø");
    EXPECT_THROW(genera(*g), SubindiceFueraDeIntervalo);
    EXPECT_EQ(g->GetDimensionFilasSLR(), 0);
    EXPECT_EQ(g->getNumReglas(), 1);
}

} // namespace
