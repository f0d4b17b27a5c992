// SPDX-License-Identifier: MIT

// What the classic method is told of, against slow searches that share nothing with it.
#include "apoyo/pasos.hpp"
#include "norvik/checks/contrasteClasico.hpp"

#include "apoyo/earley.hpp"
#include "apoyo/gramaticas.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/frasesDistintas.hpp"
#include "norvik/checks/mismaTabla.hpp"
#include "norvik/checks/pruebaTabla.hpp"
#include "norvik/grammar/clasico/genera.hpp"
#include "norvik/grammar/exacto/genera.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

using Frase = std::vector<std::u16string>;

// «conflicto-callado sino S -> a; …»
std::string dicho(std::u16string_view texto) {
    std::string lineas;
    for (const Diagnostico& d : contrastaClasico(clasico::genera(apoyo::reglasDe(texto)))) {
        lineas += (lineas.empty() ? "" : "; ") + aUtf8(nombreDe(d.codigo));
        for (const auto* parte : {&d.partes.nombre, &d.partes.hallado})
            if (!parte->empty()) lineas += " " + aUtf8(*parte);
        for (const auto& esperado : d.partes.esperados) lineas += " ~" + aUtf8(esperado);
    }
    return lineas;
}

TEST(Contraste, DiceDondeSeApartaDeLaVerdad) {
    const std::pair<std::u16string_view, std::string> casos[] = {
        {u"S -> a S | Ø", ""},
        {u"S -> si c entonces S | si c entonces S sino S | a", "conflicto-callado sino S -> si c entonces S"},
        {u"E -> E mas E | num", "conflicto-callado mas E -> E mas E"},
        {u"S -> A a | b; A -> A c | S d | Ø",
         "primeros-distintos S a, b, Ø ~a ~b ~c; primeros-distintos A a, b, d, Ø ~a ~b ~c ~Ø; "
         "frase-rechazada a d a ~lalr"},
        {u"S -> A b c | B b d; A -> a; B -> a", "frase-rechazada a b d"},
    };
    for (const auto& [texto, esperado] : casos) EXPECT_EQ(dicho(texto), esperado) << aUtf8(texto);
}

// The first of all sentences up to a length of which table and grammar say different things.
std::optional<Frase> aMano(const GramaticaLR& g, bool deLaGramatica, std::size_t largo) {
    std::vector<Frase> todas{{}};
    for (std::size_t i = 0; i < todas.size(); ++i) {
        const Frase frase = todas[i];
        const bool seAcepta = arbolPorTabla(g.tabla, g.reglas, frase).has_value();
        if (seAcepta != deLaGramatica && apoyo::deriva(g.reglas, frase) == deLaGramatica) return frase;
        if (frase.size() == largo) continue;
        for (const std::u16string token : {u"a", u"b", u"c"}) {
            todas.push_back(frase);
            todas.back().push_back(token);
        }
    }
    return std::nullopt;
}

void compara(const std::optional<Frase>& hallada, const std::optional<Frase>& buscada, const GramaticaLR& g,
             bool deLaGramatica) {
    ASSERT_TRUE(hallada || !buscada);
    if (!hallada) return;
    if (buscada) {
        EXPECT_EQ(hallada->size(), buscada->size());
    }
    EXPECT_EQ(apoyo::deriva(g.reglas, *hallada), deLaGramatica);
    EXPECT_NE(arbolPorTabla(g.tabla, g.reglas, *hallada).has_value(), deLaGramatica);
}

TEST(Contraste, LasFrasesSonLasMasCortas) {
    std::mt19937 azar(1126);
    int rechazadas = 0;
    int deMas = 0;
    int deLaMismaTabla = 0;
    for (int i = 0; i < pasos(300) && !::testing::Test::HasFailure(); ++i) {
        const std::u16string texto = apoyo::gramaticaAlAzar(azar);
        SCOPED_TRACE(aUtf8(texto));
        const GramaticaLR g = clasico::genera(apoyo::reglasDe(texto));
        const FrasesDistintas frases =
            buscaFrasesDistintas(g.reglas, exacto::Producciones(g.partidas), g.tabla, {10'000});
        compara(frases.rechazada, aMano(g, true, 3), g, true);
        compara(frases.deMas, aMano(g, false, 3), g, false);
        if (frases.rechazada) ++rechazadas;
        if (frases.deMas) ++deMas;
        const GramaticaLR exacta = exacto::genera(g.reglas, {Metodo::Slr, {}});
        if (!exacta.tabla.conflictos().empty() || !esLaMismaTabla(g.tabla, exacta.tabla)) continue;
        ++deLaMismaTabla;
        EXPECT_FALSE(frases.rechazada || frases.deMas);
    }
    EXPECT_GT(deLaMismaTabla, 30);
    EXPECT_GT(rechazadas, 30);
    EXPECT_GT(deMas, 0);
}

TEST(Contraste, UnaCeldaHaceOtraTabla) {
    const Reglas reglas =
        apoyo::reglasDe(u"S -> E; E -> E mas T | T; T -> T por F | F; F -> abre E cierra | num");
    const TablaLR exacta = exacto::genera(reglas, {Metodo::Slr, {}}).tabla;
    TablaLR clasica = clasico::genera(reglas).tabla;
    EXPECT_TRUE(esLaMismaTabla(clasica, exacta));
    for (std::int16_t estado = 0; estado < clasica.filasVigentes(); ++estado)
        for (std::int16_t codigo = 0; codigo < clasica.columnasVigentes(); ++codigo) {
            const auto fila = static_cast<std::int16_t>(estado + 1);
            const auto columna = static_cast<std::int16_t>(codigo + 1);
            const std::int16_t valor = clasica.celdas().en(fila, columna);
            const std::int16_t leido = clasica.entrada(estado, codigo);
            for (const int otro : {0, 1, 3, -1, -2, int{TablaLR::aceptar}}) {
                clasica.pon(fila, columna, static_cast<std::int16_t>(otro));
                EXPECT_EQ(esLaMismaTabla(clasica, exacta), clasica.entrada(estado, codigo) == leido)
                    << fila << ' ' << columna << ' ' << otro;
            }
            clasica.pon(fila, columna, valor);
        }
}

} // namespace
