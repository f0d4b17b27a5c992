// SPDX-License-Identifier: MIT

// Every example of a conflict is proved by what shares nothing with the search: rule by rule, and by Earley.
#include "apoyo/pasos.hpp"
#include "norvik/checks/cuentaConflictos.hpp"

#include "apoyo/earley.hpp"
#include "apoyo/gramaticas.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/historiaTexto.hpp"
#include "norvik/grammar/exacto/genera.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

using Clase = HistoriaConflicto::Clase;
using Cura = HistoriaConflicto::Cura;

std::vector<HistoriaConflicto> historias(std::u16string_view texto, Metodo metodo,
                                         const LimitesHistorias& limites = {}) {
    const GramaticaLR g = exacto::genera(apoyo::reglasDe(texto), {metodo, {}});
    return cuentaConflictos(g, {metodo, {}}, g.tabla, limites);
}

// «si c . sino»
std::string enTexto(const EjemploConflicto& ejemplo) {
    std::string texto;
    const auto frase = ejemplo.frase();
    for (std::size_t i = 0; i <= frase.size(); ++i) {
        if (i == ejemplo.punto) texto += texto.empty() ? "." : " .";
        if (i < frase.size()) texto += (texto.empty() ? "" : " ") + aUtf8(frase[i]);
    }
    return texto;
}

// The beginning of an example, the token of the conflict included.
std::vector<std::u16string> hastaElToken(const EjemploConflicto& ejemplo) {
    auto frase = ejemplo.frase();
    frase.emplace_back(u"$");
    frase.resize(std::min(ejemplo.punto + 1, frase.size()));
    return frase;
}

void pruebaCompletos(const HistoriaConflicto& historia, const Reglas& reglas) {
    for (const EjemploConflicto& ejemplo : historia.completos) {
        EXPECT_EQ(apoyo::defectoDeArbol(reglas, ejemplo.arbol, ejemplo.frase()), "");
        EXPECT_EQ(ejemplo.arbol.nodos.back().simbolo, reglas.en(1).cabeza);
        EXPECT_TRUE(apoyo::deriva(reglas, ejemplo.frase())) << enTexto(ejemplo);
        EXPECT_EQ(hastaElToken(ejemplo).back(), historia.simbolo);
    }
}

// What an example promises. Says what is wrong with it.
void compruebaHistoria(const HistoriaConflicto& historia, const Reglas& reglas) {
    if (historia.clase == Clase::SinEjemplo) return;
    for (const EjemploConflicto& corto : historia.cortos)
        EXPECT_EQ(apoyo::defectoDeArbol(reglas, corto.arbol, corto.frase()), "");
    pruebaCompletos(historia, reglas);
    const auto& [uno, otro] = historia.completos;
    if (historia.clase == Clase::Ambigua) {
        EXPECT_EQ(historia.cortos[0].frase(), historia.cortos[1].frase());
        EXPECT_NE(norvik::enTexto(historia.cortos[0].arbol), norvik::enTexto(historia.cortos[1].arbol));
        EXPECT_EQ(uno.frase(), otro.frase());
        EXPECT_EQ(uno.punto, otro.punto);
        EXPECT_NE(norvik::enTexto(uno.arbol), norvik::enTexto(otro.arbol));
    } else if (historia.clase == Clase::DosFrases) {
        ASSERT_EQ(uno.punto, otro.punto);
        EXPECT_EQ(hastaElToken(uno), hastaElToken(otro));
    }
}

struct CasoHistoria {
    std::u16string_view reglas;
    Metodo metodo;
    Clase clase;
    Cura cura;
    std::string corto; // of the first conflict
};

TEST(Historia, LasConocidas) {
    const CasoHistoria casos[] = {
        {u"S -> si c entonces S | si c entonces S sino S | a", Metodo::Slr, Clase::Ambigua,
         Cura::SinoColgante, "si c entonces si c entonces S . sino S"},
        {u"E -> E mas E | num", Metodo::Lalr, Clase::Ambigua, Cura::Asociatividad, "E mas E . mas E"},
        {u"E -> E mas T | T por E | menos E | T; T -> num", Metodo::Lalr, Clase::Ambigua, Cura::Prioridad,
         "menos E . mas T"},
        {u"S -> L; L -> L E | Ø; E -> e | Ø", Metodo::Lr1, Clase::Ambigua, Cura::ListaDosVeces, "L . e"},
        {u"L -> L L | a", Metodo::Lalr, Clase::Ambigua, Cura::ListaDosVeces, "L L . a"},
        {u"S -> S | a", Metodo::Lalr, Clase::Ambigua, Cura::Ciclo, "S ."},
        {u"S -> A | B; A -> a; B -> a", Metodo::Lalr, Clase::Ambigua, Cura::DosVariables, "a ."},
        {u"S -> L igual R | R; L -> por R | id; R -> L", Metodo::Slr, Clase::SinComienzoComun,
         Cura::MetodoLalr, "L . igual R"},
        {u"S -> a A d | b B d | a B e | b A e; A -> c; B -> c", Metodo::Lalr, Clase::SinComienzoComun,
         Cura::MetodoLr1, "a c . d"},
        {u"S -> A b c | B b d; A -> a; B -> a", Metodo::Lr1, Clase::DosFrases, Cura::Factorizar, "a . b c"},
        {u"S -> a S a | a", Metodo::Lalr, Clase::DosFrases, Cura::Factorizar, "a a . a a a"},
    };
    for (const auto& [texto, metodo, clase, cura, corto] : casos) {
        const Reglas reglas = apoyo::reglasDe(texto);
        const auto todas = historias(texto, metodo);
        ASSERT_FALSE(todas.empty()) << aUtf8(texto);
        for (const HistoriaConflicto& historia : todas) compruebaHistoria(historia, reglas);
        EXPECT_EQ(todas.front().clase, clase) << aUtf8(texto);
        EXPECT_EQ(todas.front().cura, cura) << aUtf8(texto);
        EXPECT_EQ(enTexto(todas.front().cortos[0]), corto);
        EXPECT_EQ(todas.front().prueba == HistoriaConflicto::Prueba::DaElPrimero, clase == Clase::Ambigua);
    }
}

TEST(Historia, EnPalabrasConSusDosArbolesYSusTokens) {
    const auto enPalabras = [](std::u16string_view reglas) {
        return aUtf8(norvik::enTexto(historias(reglas, Metodo::Lalr).front()));
    };
    EXPECT_EQ(enPalabras(u"E -> E mas E | num"),
              R"(  En el estado 4, ante «mas» cabe desplazar «mas» y cabe reducir por E -> E mas
    E. La tabla elige desplazar «mas».
  La gramática es ambigua: esta frase de E tiene dos árboles, que se separan en
    •.
      E mas E • mas E
  Lo que elige la tabla, desplazar «mas»:
      E
      ├─ E mas
      └─ E
         └─ E mas E
  Lo otro, reducir por E -> E mas E:
      E
      ├─ E
      │  └─ E mas E
      └─ mas E
  Desde la variable inicial y en tokens:
      num mas num • mas num
  Del texto en tokens la tabla da el primer árbol.
  Por qué cabe reducir ahí:
      «mas» sigue a E en la regla E -> E mas E
  Qué hacer: El operador no dice hacia qué lado se agrupa. Escriba la recursión
    a un solo lado: E -> E mas Termino agrupa por la izquierda; con un método
    exacto vale también la directiva '% izquierda: mas.
)");
    EXPECT_EQ(enPalabras(u"S -> A a | B a; A -> Ø | b; B -> Ø"),
              R"(  En el estado 0, ante «a» cabe reducir por A -> Ø y cabe reducir por B -> Ø. La
    tabla elige la regla anterior.
  La gramática es ambigua: esta frase de S tiene dos árboles, que se separan en
    •.
      • a
  Lo que elige la tabla, reducir por A -> Ø:
      S
      ├─ A (vacía)
      └─ a
  Lo otro, reducir por B -> Ø:
      S
      ├─ B (vacía)
      └─ a
  Desde la variable inicial y en tokens:
      • a
  Del texto en tokens la tabla da el primer árbol.
  Por qué cabe reducir ahí:
      «a» sigue a B en la regla S -> B a
  Qué hacer: Lo mismo, repetido o vacío, sale de dos maneras. Deje una sola: una
    recursión a un lado (Lista -> Lista Elemento | Elemento) y el vacío en un
    solo sitio.
)");
}

// «E0 -> E0 o0 E0 | E1; …», and what follows the last.
std::u16string escala(int niveles, std::u16string_view fin) {
    std::u16string texto;
    for (int i = 0; i < niveles; ++i) {
        const std::u16string n = aTexto(i);
        texto += u"E" + n + u" -> E" + n + u" o" + n + u" E" + n + u" | E" + aTexto(i + 1) + u"; ";
    }
    return texto + u"E" + aTexto(niveles) + u" -> " + std::u16string(fin);
}

TEST(Historia, GramaticasHostilesAcabanEnSuPlazo) {
    std::u16string palabras = u"S -> S S";
    for (int i = 0; i < 300; ++i) palabras += u" | k" + aTexto(i);
    std::u16string doblan; // its shortest text has 2^60 tokens
    for (int i = 0; i < 60; ++i)
        doblan += u"V" + aTexto(i) + u" -> V" + aTexto(i + 1) + u" V" + aTexto(i + 1) + u"; ";
    std::u16string hondas;
    for (int i = 0; i < 240; ++i)
        hondas += u"R" + aTexto(i) + u" -> a R" + aTexto(i + 1) + u" | a R" + aTexto(i + 1) + u" b | c; ";
    for (const std::u16string& texto :
         {escala(80, u"num | pa E0 pc"), palabras, u"S -> x V0 | V0 x; " + doblan + u"V60 -> a | a a",
          hondas + u"R240 -> a", std::u16string(u"S -> S"), std::u16string(u"S -> Ø"),
          std::u16string(u"S -> S | Ø | S S"), std::u16string(u"S -> a S B | a S; B -> B b"),
          std::u16string(u"S -> A S A; A -> Ø"), std::u16string(u"S -> a S a | b S b | a | b")}) {
        const auto antes = std::chrono::steady_clock::now();
        const GramaticaLR g = exacto::genera(apoyo::reglasDe(texto), {Metodo::Lalr, {}});
        EXPECT_EQ(cuentaConflictos(g, {Metodo::Lalr, {}}, g.tabla).size(), g.tabla.conflictos().size());
        EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(10))
            << aUtf8(texto.substr(0, 60));
    }
}

// A budget that is spent at once leaves every conflict told, and says so.
TEST(Historia, SinPlazoSeDice) {
    const auto sinPasos = historias(u"E -> E mas E | num", Metodo::Lalr, {0, 0});
    ASSERT_EQ(sinPasos.size(), 1U);
    EXPECT_TRUE(sinPasos[0].agotado);
    EXPECT_EQ(sinPasos[0].clase, Clase::DosFrases);
    const auto sinTiempo =
        historias(u"E -> E mas E | num", Metodo::Lalr, {.enTotal = std::chrono::milliseconds(-2000)});
    EXPECT_TRUE(sinTiempo[0].agotado);
    EXPECT_EQ(sinTiempo[0].clase, Clase::SinEjemplo);
    const auto soloUna = historias(u"E -> E mas E | E por E | num", Metodo::Lalr, {.contados = 1});
    ASSERT_EQ(soloUna.size(), 4U);
    EXPECT_EQ(soloUna[0].clase, Clase::Ambigua);
    EXPECT_EQ(soloUna[1].clase, Clase::SinEjemplo);
    EXPECT_EQ(soloUna[1].acciones[1].textoRegla, u"E -> E mas E");
}

TEST(Historia, CadaEjemploDeGramaticasAlAzarSePrueba) {
    std::mt19937 azar(20261125);
    int ambiguas = 0;
    int dosFrases = 0;
    int solas = 0;
    int comoSeDice = 0;
    const Metodo metodos[] = {Metodo::Slr, Metodo::Lalr, Metodo::Lr1};
    for (int i = 0; i < pasos(400) && !::testing::Test::HasFailure(); ++i) {
        const std::u16string texto = apoyo::gramaticaAlAzar(azar);
        const Reglas reglas = apoyo::reglasDe(texto);
        const auto todas = historias(texto, metodos[i % 3], {1'000, 4'000});
        for (const HistoriaConflicto& historia : todas) {
            SCOPED_TRACE(aUtf8(texto + u" · " + aTexto(historia.estado) + u" " + historia.simbolo));
            compruebaHistoria(historia, reglas);
            if (historia.clase == Clase::Ambigua) ++ambiguas;
            if (historia.clase == Clase::DosFrases) ++dosFrases;
            EXPECT_FALSE(historia.clase == Clase::DosFrases && historia.cura == Cura::MetodoLalr);
            if (historia.clase == Clase::Ambigua && todas.size() == 1) {
                ++solas;
                if (historia.prueba == HistoriaConflicto::Prueba::DaElPrimero) ++comoSeDice;
            }
        }
    }
    EXPECT_GT(ambiguas, 300);
    EXPECT_GT(dosFrases, 100);
    EXPECT_GT(comoSeDice * 10, solas * 8); // the same cell may come twice in a sentence
}

} // namespace
