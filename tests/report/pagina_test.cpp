// SPDX-License-Identifier: MIT

#include "apoyo/gramaticas.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/cuentaConflictos.hpp"
#include "norvik/grammar/exacto/genera.hpp"
#include "norvik/report/paginaGramatica.hpp"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

using namespace norvik;

namespace {

std::string paginaDe(std::u16string_view reglas) {
    const GramaticaLR g = exacto::genera(apoyo::reglasDe(reglas), {Metodo::Lalr, {}});
    LimitesHistorias pocos;
    pocos.pasosPorConflicto = pocos.pasosEnTotal = 2000;
    const NotasDePagina notas{
        u"Una & <otra>", Metodo::Lalr, cuentaConflictos(g, {Metodo::Lalr, {}}, g.tabla, pocos), {}, {}};
    return aUtf8(paginaDeGramatica(g, notas));
}

// The texts that stand behind a mark, up to a quote.
std::multiset<std::string> detras(const std::string& pagina, std::string_view marca) {
    std::multiset<std::string> textos;
    for (std::size_t i = pagina.find(marca); i != std::string::npos; i = pagina.find(marca, i + 1)) {
        const std::size_t inicio = i + marca.size();
        textos.insert(pagina.substr(inicio, pagina.find('"', inicio) - inicio));
    }
    return textos;
}

// Every tag that is opened is closed, in order.
std::string malCerrada(const std::string& pagina) {
    const std::set<std::string> sinCierre{"!DOCTYPE", "meta", "line"};
    std::vector<std::string> abiertas;
    for (std::size_t i = pagina.find('<'); i != std::string::npos; i = pagina.find('<', i + 1)) {
        const std::size_t fin = pagina.find('>', i);
        const std::string nombre = pagina.substr(i + 1, pagina.find_first_of(" >", i) - i - 1);
        if (nombre.front() != '/') {
            if (!sinCierre.contains(nombre)) abiertas.push_back(nombre);
            continue;
        }
        if (abiertas.empty() || "/" + abiertas.back() != nombre) return pagina.substr(i, fin - i + 1);
        abiertas.pop_back();
    }
    return abiertas.empty() ? "" : abiertas.back();
}

TEST(PaginaDeGramatica, CadaEnlaceLlevaAUnLugarYNingunNombreEsHtml) {
    std::mt19937 azar(3); // NOLINT(cert-msc51-cpp): the same each time
    std::vector<std::u16string> gramaticas{u"S -> <b> S & | \"x\" | Ø", u"S -> si S | si S sino S | a",
                                           u"s -> a; B -> b"};
    for (int i = 0; i < 100; ++i) gramaticas.push_back(apoyo::gramaticaAlAzar(azar));
    for (const auto& gramatica : gramaticas) {
        const std::string pagina = paginaDe(gramatica);
        const auto lugares = detras(pagina, " id=\"");
        EXPECT_EQ(lugares.size(), std::set<std::string>(lugares.begin(), lugares.end()).size());
        for (const std::string& destino : detras(pagina, "href=\"#"))
            EXPECT_TRUE(lugares.contains(destino)) << destino << " " << aUtf8(gramatica);
        ASSERT_EQ(malCerrada(pagina), "") << aUtf8(gramatica);
        EXPECT_EQ(pagina.find("<script"), std::string::npos);
        EXPECT_NE(pagina.find("<title>Una &amp; &lt;otra&gt;</title>"), std::string::npos);
    }
    EXPECT_NE(paginaDe(gramaticas[0]).find("&lt;b&gt;"), std::string::npos);
}

TEST(PaginaDeGramatica, LoQueDice) {
    const std::string pagina = paginaDe(u"S -> si S | si S sino S | a");
    for (
        const std::string_view trozo : {
            R"(<tr id="r2"><th scope="row">2</th><td><a href="#v1">S</a> → si <a href="#v1">S</a> sino <a href=)",
            R"(<td>si, a</td><td>$, sino</td><td><a href="#r1">1</a> <a href="#r2">2</a>)",
            R"(<li><a href="#r1">1</a>. <a href="#v1">S</a> → si <a href="#v1">S</a> •</li>)",
            R"(<li>comienzo → <a href="#v1">S</a> • $</li>)",
            R"(<td class="conflicto"><a href="#e5">D5 / R1</a></td>)",
            "<h3>En el <a href=\"#e4\">estado 4</a>, ante «sino»</h3>\n<section class=\"historia\">",
        })
        EXPECT_NE(pagina.find(trozo), std::string::npos) << trozo << pagina;
}

TEST(PaginaDeGramatica, DeMuchosSeVenLosPrimerosYSeDiceCuantosQuedan) {
    const GramaticaLR g = exacto::genera(apoyo::reglasDe(u"S -> a"), {Metodo::Lalr, {}});
    const auto con = [&](std::size_t historias, std::size_t avisos) {
        return aUtf8(paginaDeGramatica(g, {u"",
                                           Metodo::Lalr,
                                           std::vector<HistoriaConflicto>(historias),
                                           std::vector<Diagnostico>(avisos),
                                           {}}));
    };
    const std::string muchos = con(1003, 1002);
    EXPECT_EQ(detras(muchos, "<section class=\"historia\"").size(), 1000U);
    EXPECT_EQ(detras(muchos, "<p class=\"aviso\"").size(), 1000U);
    EXPECT_NE(muchos.find("<p>Otros conflictos: 3.</p>"), std::string::npos);
    EXPECT_NE(muchos.find("<p>Otros avisos: 2.</p>"), std::string::npos);
    EXPECT_EQ(malCerrada(muchos), "");
    EXPECT_EQ(con(1000, 1000).find("Otros"), std::string::npos);
}

TEST(PaginaDeGramatica, ElGrafoTieneUnaFlechaPorTransicion) {
    const GramaticaLR g = exacto::genera(apoyo::reglasDe(u"S -> S a\"\\ | b"), {Metodo::Lalr, {}});
    EXPECT_EQ(
        aUtf8(grafoDeAutomata(g)),
        "digraph {\nrankdir=LR; bgcolor=transparent;\nnode [shape=box, fontname=monospace, fontsize=11]; "
        "edge [fontname=monospace, fontsize=11];\n"
        "0 [URL=\"#e0\"];\n0 -> 1 [label=\"S\"];\n0 -> 2 [label=\"b\"];\n"
        "1 [URL=\"#e1\"];\n1 -> 3 [label=\"a\\\"\\\\\"];\n2 [URL=\"#e2\"];\n3 [URL=\"#e3\"];\n}\n");
}

} // namespace
