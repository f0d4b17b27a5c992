// SPDX-License-Identifier: MIT

// What threads share, from its first use on: languages, and trees that are read.

#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/revision.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

using namespace norvik;

namespace {

namespace fs = std::filesystem;

const fs::path ejemplos = fs::path(NORVIK_SOURCE_DIR) / "ejemplos";

std::string resultado(const Analisis& analisis) {
    if (analisis) return aUtf8(analisis.arbol.toString());
    return aUtf8(mensaje(analisis.diagnosticos.front()));
}

std::vector<std::u16string> textosDe(const std::string& ejemplo) {
    std::vector<std::u16string> textos;
    for (const char* const clase : {"bien", "mal"})
        for (const auto& fichero : fs::directory_iterator(ejemplos / ejemplo / clase))
            textos.push_back(leeTexto(fichero.path()));
    return textos;
}

void enVariosHilos(const std::function<void()>& tarea) {
    std::vector<std::jthread> hilos;
    constexpr int cuantos = 4;
    hilos.reserve(cuantos);
    for (int i = 0; i < cuantos; ++i) hilos.emplace_back(tarea);
}

TEST(Hilos, CompartenUnLenguajeDesdeElPrimerTexto) {
    for (const std::string ejemplo : {"pascal", "json", "consulta"}) {
        const fs::path especificacion = ejemplos / ejemplo / (ejemplo + ".nvk");
        const std::vector<std::u16string> textos = textosDe(ejemplo);
        std::vector<std::string> esperados;
        esperados.reserve(textos.size());
        const Lenguaje aparte = Lenguaje::deFichero(especificacion).lenguaje.value();
        for (const auto& texto : textos) esperados.push_back(resultado(analiza(aparte, texto)));
        const Lenguaje lenguaje = Lenguaje::deFichero(especificacion).lenguaje.value();
        enVariosHilos([&] {
            for (std::size_t i = 0; i < textos.size(); ++i) {
                EXPECT_EQ(resultado(analiza(lenguaje, textos[i])), esperados[i]);
                EXPECT_GT(lexemas(lenguaje, textos[i]).size(), 0U);
            }
        });
    }
}

TEST(Hilos, CompilanALaVez) {
    enVariosHilos([] {
        const Compilacion compilacion = Lenguaje::compila("Token a = \"a\"; S -> S a | a;");
        EXPECT_EQ(analiza(*compilacion.lenguaje, "a a a").arbol.numNodos(), 6U);
    });
}

TEST(Hilos, LeenUnMismoArbol) {
    const Lenguaje lenguaje = Lenguaje::deFichero(ejemplos / "json" / "json.nvk").lenguaje.value();
    const Analisis analisis = analiza(lenguaje, "{\"ñ\": [1, 2]}");
    const std::string esperado = resultado(analisis);
    enVariosHilos([&] { EXPECT_EQ(resultado(analisis), esperado); });
}

// Of one language several threads ask for all there is to ask, and each is told to stop by another.
TEST(Hilos, SeParanDesdeOtro) {
    const fs::path fichero = ejemplos / "pascal" / "pascal.nvk";
    const std::u16string especificacion = leeTexto(fichero);
    const Lenguaje lenguaje = Lenguaje::deFichero(fichero).lenguaje.value();
    const std::u16string texto = textosDe("pascal").front();
    const std::function<void(const std::stop_token&)> tareas[] = {
        [&](const std::stop_token& parada) { analiza(lenguaje, texto + u" begin ; )", {parada}); },
        [&](const std::stop_token& parada) { lexemas(lenguaje, texto, {parada}); },
        [&](const std::stop_token& parada) { continuaciones(lenguaje, texto, texto.size() / 2, {parada}); },
        [&](const std::stop_token& parada) {
            revisaConHistorias(especificacion, {Metodo::Lr1, parada});
        },
        [&](const std::stop_token& parada) {
            Lenguaje::compila(especificacion, {Metodo::Clasico, parada});
        }};
    const std::string esperado = resultado(analiza(lenguaje, texto));
    const std::size_t siguen = continuaciones(lenguaje, texto, texto.size() / 2).propuestas.size();
    for (int vuelta = 0; vuelta < 3; ++vuelta) {
        std::stop_source parada;
        std::vector<std::jthread> hilos;
        for (const auto& tarea : tareas) hilos.emplace_back([&] { tarea(parada.get_token()); });
        std::this_thread::sleep_for(std::chrono::milliseconds(vuelta * 10));
        parada.request_stop();
    }
    enVariosHilos([&] {
        EXPECT_EQ(resultado(analiza(lenguaje, texto)), esperado);
        EXPECT_EQ(continuaciones(lenguaje, texto, texto.size() / 2).propuestas.size(), siguen);
    });
}

TEST(Hilos, LeenLosConjuntosDeUnaGramatica) {
    gramatica g;
    g.SetRegla(u"S", u"S a | b");
    g.creaConjuntos();
    enVariosHilos([&g] {
        EXPECT_EQ(&g.primeros(), &g.primeros());
        EXPECT_EQ(g.siguientes().front().toStringConjunto(), u"$, a");
    });
}

} // namespace
