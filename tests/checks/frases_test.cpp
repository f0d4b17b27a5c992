// SPDX-License-Identifier: MIT

#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/frases.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace norvik;

namespace {

std::vector<Lenguaje> ejemplos() {
    std::vector<Lenguaje> todos;
    for (const auto& sitio : std::filesystem::recursive_directory_iterator(NORVIK_SOURCE_DIR "/ejemplos"))
        if (sitio.path().extension() == ".nvk")
            todos.push_back(Lenguaje::deFichero(sitio.path()).lenguaje.value());
    return todos;
}

void compruebaBuenas(const Lenguaje& lenguaje, const Frases& frases, bool todas) {
    std::set<std::int16_t> usadas;
    for (const std::u16string& texto : frases.textos) {
        const Analisis analisis = analiza(lenguaje, texto);
        ASSERT_TRUE(analisis) << aUtf8(texto);
        for (std::size_t i = 0; i < analisis.arbol.numNodos(); ++i) usadas.insert(analisis.arbol[i].regla());
    }
    for (std::size_t n = 1; todas && n <= lenguaje.vocabulario().reglas.size(); ++n) {
        const auto regla = static_cast<std::int16_t>(n);
        const bool seDiceQueNo = std::ranges::find(frases.reglasSinUsar, regla) != frases.reglasSinUsar.end();
        EXPECT_NE(usadas.contains(regla), seDiceQueNo) << n;
    }
}

TEST(Frases, SinTiempoSonLasPrimeras) {
    const Lenguaje lenguaje =
        Lenguaje::deFichero(NORVIK_SOURCE_DIR "/ejemplos/calculadora/calculadora.nvk").lenguaje.value();
    EXPECT_TRUE(frasesDe(lenguaje, {0, 1, false, {}}).textos.empty());
    const Frases cuantasQuepan = frasesDe(lenguaje, {SIZE_MAX, 1, true, std::chrono::milliseconds(30)});
    ASSERT_FALSE(cuantasQuepan.textos.empty());
    EXPECT_EQ(frasesDe(lenguaje, {cuantasQuepan.textos.size(), 1, true}).textos, cuantasQuepan.textos);
}

TEST(Frases, DeLosEjemplosUsanTodasLasReglasYSonLasMismasCadaVez) {
    for (const Lenguaje& lenguaje : ejemplos()) {
        const Frases pocas = frasesDe(lenguaje, {});
        compruebaBuenas(lenguaje, pocas, true);
        EXPECT_LE(pocas.reglasSinUsar.size(), lenguaje.vocabulario().reglas.size() / 20);
        EXPECT_LT(pocas.textos.size(), lenguaje.vocabulario().reglas.size());
        const Frases azar = frasesDe(lenguaje, {12, 4, false});
        EXPECT_EQ(azar.textos.size(), 12U);
        compruebaBuenas(lenguaje, azar, false);
        EXPECT_EQ(frasesDe(lenguaje, {12, 4, false}).textos, azar.textos);
        EXPECT_NE(frasesDe(lenguaje, {12, 5, false}).textos, azar.textos);
        for (const std::size_t cuantas : {std::size_t{0}, std::size_t{8}}) {
            const Frases malas = frasesDe(lenguaje, {cuantas, 1, true});
            EXPECT_GE(malas.textos.size(), cuantas);
            for (const std::u16string& texto : malas.textos)
                EXPECT_EQ(analiza(lenguaje, texto).diagnosticos.size(), 1U) << aUtf8(texto);
        }
    }
}

// Texts and the rules that none could be found for, of grammars that mislead who looks for sentences.
TEST(Frases, DeGramaticasDificiles) {
    const std::u16string tokens = u"Token a = \"a\";\nToken b = \"b\";\nToken c = \"\\b(?=x)\";\n";
    const std::pair<std::u16string, std::string> casos[] = {
        {u"S -> Ø;", "[]"},
        {u"S -> S;", " 1"},
        {u"S -> a | S; ", "[a] 2"},
        {u"S -> A; A -> B | a; B -> A;", "[a] 2 4"}, // goes round for nothing
        {u"S -> A | b; A -> a A;", "[b] 1 3"},       // gives no text
        {u"S -> a; B -> b;", "[a] 2"},               // is not reached
        {u"S -> a | c b;", "[a] 2"},                 // no text of the token is known
        {u"S -> a | nada;", "[a] 2"},
        {u"S -> a s; s -> b;", " 1 2"},     // a head in lower case is a token in bodies
        {u"S -> S S | Ø | a;", "[a] [] 1"}, // the table never reduces by the first
        {u"S -> a S b | Ø;", "[a b]"},
    };
    for (const auto& [reglas, esperado] : casos) {
        const auto compilacion = Lenguaje::compila(tokens + reglas, {Metodo::Lalr});
        if (!compilacion.lenguaje) {
            ADD_FAILURE() << aUtf8(reglas);
            continue;
        }
        const Frases frases = frasesDe(*compilacion.lenguaje, {});
        std::string hallado;
        for (const auto& texto : frases.textos)
            hallado += (hallado.empty() ? "[" : " [") + aUtf8(texto) + "]";
        for (const std::int16_t n : frases.reglasSinUsar) hallado += " " + std::to_string(n);
        EXPECT_EQ(hallado, esperado) << aUtf8(reglas);
        compruebaBuenas(*compilacion.lenguaje, frasesDe(*compilacion.lenguaje, {5, 1, false}), false);
    }
}

TEST(Frases, LasLargasDeMasNoSeIntentan) {
    std::u16string especificacion = u"Token a = \"a\";\nS -> a | N0;\n";
    for (int i = 0; i < 80; ++i)
        especificacion += u"N" + aTexto(i) + u" -> N" + aTexto(i + 1) + u" N" + aTexto(i + 1) + u";\n";
    const auto compilacion = Lenguaje::compila(especificacion + u"N80 -> a;\n", {Metodo::Lalr});
    ASSERT_TRUE(compilacion.lenguaje);
    const Frases frases = frasesDe(*compilacion.lenguaje, {});
    EXPECT_EQ(frases.textos, std::vector<std::u16string>{u"a"});
    EXPECT_EQ(frases.reglasSinUsar.size(), 82U);
}

} // namespace
