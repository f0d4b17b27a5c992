// SPDX-License-Identifier: MIT

// The automaton as a graph, and the conflicts of its table.
#include "norvik/report/grafoEstados.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/conflictosDeTabla.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

using namespace norvik;

namespace {

Lenguaje lenguajeDe(std::u16string_view reglas, Metodo metodo = Metodo::Lalr) {
    const std::u16string tokens =
        u"Token a = \"a\"; Token b = \"b\"; Token mas = \"\\+\"; Token si = \"si\"; "
        u"Token no = \"no\"; Token ab = \"\\(\"; Token ce = \"\\)\"; ";
    return Lenguaje::compila(tokens + std::u16string(reglas), {metodo}).lenguaje.value();
}

const GramaticaLR& gramaticaDe(const Lenguaje& lenguaje) {
    return lenguaje.datos().reglas.valores();
}

/// «0 -ab- 4 -E- 6: ab a»
std::string llegada(const GramaticaLR& g, std::int16_t estado) {
    const GrafoEstados grafo(g);
    std::string texto = "0";
    for (const Transicion& t : grafo.camino(estado))
        texto += " -" + aUtf8(g.partidas.texto(t.simbolo)) + "- " + std::to_string(t.hasta);
    const auto entrada = grafo.entrada(estado);
    texto += entrada ? ":" : "";
    if (entrada)
        for (const std::u16string& token : *entrada) texto += " " + aUtf8(token);
    return texto;
}

/// «4 no 2»: state, token and rule, of each.
std::string conflictos(std::u16string_view reglas, Metodo metodo) {
    const Lenguaje lenguaje = lenguajeDe(reglas, metodo);
    const GramaticaLR& g = gramaticaDe(lenguaje);
    std::string texto;
    for (const Conflicto& c : conflictosDeTabla(g, metodo))
        texto += std::to_string(c.fila - 1) + " " + aUtf8(g.tabla.simbolo(c.columna)) + " " +
                 std::to_string(c.regla) + "; ";
    return texto;
}

} // namespace

TEST(GrafoEstados, LlegaPorElTextoMasCorto) {
    const struct {
        std::u16string_view reglas;
        std::int16_t estado;
        std::string llegada;
    } casos[] = {
        {u"E -> E mas T | T; T -> a | ab E ce;", 0, "0:"},
        {u"E -> E mas T | T; T -> a | ab E ce;", 1, "0 -E- 1: a"},
        {u"E -> E mas T | T; T -> a | ab E ce;", 8, "0 -ab- 4 -E- 6 -ce- 8: ab a ce"},
        // One transition more, but two tokens less.
        {u"S -> A B | si no B; A -> a b a b; B -> mas ab;", 6, "0 -si- 3 -no- 7 -mas- 6: si no mas"},
        // No text leads there.
        {u"S -> a | A b; A -> A a;", 3, "0 -A- 3"},
    };
    for (const auto& [reglas, estado, esperada] : casos)
        EXPECT_EQ(llegada(gramaticaDe(lenguajeDe(reglas)), estado), esperada) << aUtf8(reglas) << estado;
}

TEST(GrafoEstados, LaVecindadEsLoMasCercano) {
    const Lenguaje lenguaje = lenguajeDe(u"S -> a b mas si no ab ce;");
    const GrafoEstados grafo(gramaticaDe(lenguaje));
    EXPECT_EQ(grafo.estados(), 9U);
    EXPECT_EQ(grafo.vecindad(4, 3), (std::vector<std::int16_t>{3, 4, 5}));
    EXPECT_EQ(grafo.vecindad(0, 99).size(), 9U);
    EXPECT_EQ(grafo.vecindad(8, 1), (std::vector<std::int16_t>{8}));
}

TEST(ConflictosDeTabla, TambienLosQueElMetodoClasicoCalla) {
    const std::tuple<std::u16string_view, Metodo, std::string> casos[] = {
        {u"S -> si S | si S no S | a;", Metodo::Lalr, "4 no 1; "},
        {u"S -> si S | si S no S | a;", Metodo::Clasico, "3 no 1; "},
        {u"S -> si S no S | si S | a;", Metodo::Clasico, "3 no 2; "},
        {u"S -> A | B; A -> a; B -> a;", Metodo::Clasico, "3 $ 4; "},
        {u"S -> A | B; A -> a; B -> a;", Metodo::Slr, "4 $ 4; "},
        {u"S -> S | a;", Metodo::Clasico, "1 $ 1; "},
        {u"E -> E mas E | a;", Metodo::Lr1, "4 mas 1; "},
        {u"S -> a S | b;", Metodo::Clasico, ""},
    };
    for (const auto& [reglas, metodo, esperados] : casos)
        EXPECT_EQ(conflictos(reglas, metodo), esperados) << aUtf8(reglas);
}
