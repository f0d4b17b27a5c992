// SPDX-License-Identifier: MIT

// Whoever asks for the end of long work, at any moment and from another thread, is heard.
#include "apoyo/gramaticaLarga.hpp"
#include "apoyo/repite.hpp"
#include "grammar/apoyoGramatica.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/revision.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

using namespace norvik;

namespace {

using namespace std::chrono_literals;
using Reloj = std::chrono::steady_clock;
#if defined(__SANITIZE_ADDRESS__)
constexpr auto plazo = 10s; // all takes as many times longer
#else
constexpr auto plazo = 2s;
#endif

std::string numero(int n) {
    return std::to_string(n);
}

// All variables can be empty, and each is two of the others.
std::string vacias() {
    std::string texto = "Token a = \"a\"; S -> A0";
    for (int i = 1; i < 450; ++i) texto += " A" + numero(i);
    texto += ";\n";
    for (int i = 0; i < 450; ++i)
        texto += "A" + numero(i) + " -> A" + numero((i * 7 + 1) % 450) + " A" + numero((i * 5 + 3) % 450) +
                 " | Ø;\n";
    return texto;
}

std::string ciclos() {
    std::string texto = "Token a = \"a\"; S -> A0;\n";
    for (int i = 0; i < 300; ++i)
        texto += "A" + numero(i) + " -> A" + numero((i + 1) % 300) + " | A" + numero((i * 37 + 11) % 300) +
                 " | a;\n";
    return texto;
}

// Many more rules than a grammar may have, none of which comes back to its head.
std::string cadena() {
    std::string texto = "Token a = \"a\";\n";
    for (int i = 0; i < 5000; ++i) texto += "A" + numero(i) + " -> A" + numero(i + 1) + " a;\n";
    return texto + "A5000 -> a;\n";
}

std::string patrones() {
    std::string texto = "ExpReg x = \"(a|b)*a" + apoyo::repite("[ab]", 12) + "\";\n";
    for (int i = 0; i < 800; ++i) texto += "Token t" + numero(i) + " = \"<x>b\";\n";
    return texto + "S -> t1;";
}

std::string sinDefinir() {
    std::string texto = "Token a = \"a\"; S -> a";
    for (int i = 0; i < 20'000; ++i) texto += " esteNombre" + numero(i);
    texto += ";\n";
    for (int i = 0; i < 3'000; ++i) texto += "Token otroNombre" + numero(i) + " = \"a\";\n";
    return texto;
}

bool esCancelado(const Diagnostico& d) {
    return d.codigo == Codigo::Cancelado;
}

/// Says whether it was cancelled.
using Trabajo = std::function<bool(const std::stop_token&)>;
struct Caso {
    std::string nombre;
    Trabajo trabajo;
};

std::vector<Caso> casos() {
    std::vector<Caso> todos;
    const std::pair<const char*, std::string> lenguajes[] = {
        {"vacías", vacias()},     {"ciclos", ciclos()}, {"larga", apoyo::gramaticaLarga()},
        {"patrones", patrones()}, {"cadena", cadena()}, {"sin definir", sinDefinir()}};
    for (const auto& [nombre, texto] : lenguajes) {
        const std::u16string especificacion = desdeUtf8(texto).value();
        for (const auto& [metodo, cual] : metodos) {
            if (cual == Metodo::Slr) continue; // reviewing the classic one makes its table, too
            const std::string cuales = std::string(nombre) + ", " + aUtf8(metodo);
            todos.push_back({"compila " + cuales, [=, cual = cual](const std::stop_token& parada) {
                                 const auto c = Lenguaje::compila(especificacion, {cual, parada});
                                 return std::ranges::any_of(c.diagnosticos, esCancelado) && !c.lenguaje;
                             }});
            todos.push_back(
                {"revisa " + cuales, [=, cual = cual](const std::stop_token& parada) {
                     const auto hallazgos = revisaConHistorias(especificacion, {cual, parada}, {});
                     return std::ranges::any_of(hallazgos, esCancelado, &Hallazgo::diagnostico) ||
                            std::ranges::any_of(hallazgos, [](const Hallazgo& h) {
                                return std::ranges::any_of(h.historias, &HistoriaConflicto::agotado);
                            });
                 }});
        }
    }
    const Lenguaje sumas =
        *Lenguaje::compila("Token mas = \"\\+\"; Token abre = \"\\(\"; Token cierra = \"\\)\"; Token n = "
                           "\"[0-9]+\"; E -> E mas T | T; T -> n | abre E cierra;")
             .lenguaje;
    const std::pair<const char*, std::u16string> textos[] = {
        {"bueno", apoyo::repite(u"1+", 2'000'000) + u"1"},
        {"con erratas", apoyo::repite(u"1 + + ( 2 ", 200'000)},
        {"hondo", apoyo::repite(u"(", 1'000'000)}};
    for (const auto& [nombre, texto] : textos) {
        todos.push_back({std::string("analiza ") + nombre, [=, texto = texto](const std::stop_token& parada) {
                             return std::ranges::any_of(analiza(sumas, texto, {parada}).diagnosticos,
                                                        esCancelado);
                         }});
        todos.push_back({std::string("lexemas ") + nombre, [=, texto = texto](const std::stop_token& parada) {
                             return std::ranges::any_of(lexemas(sumas, texto, {parada}).diagnosticos,
                                                        esCancelado);
                         }});
    }
    return todos;
}

TEST(Cancelacion, SeAtiendeEnDosSegundosDondequieraQueEste) {
    int cancelados = 0;
    for (const auto& [nombre, trabajo] : casos()) {
        for (const auto espera : {1ms, 50ms}) {
            std::stop_source parada;
            Reloj::time_point pedida;
            std::jthread otro([&] {
                std::this_thread::sleep_for(espera);
                pedida = Reloj::now();
                parada.request_stop();
            });
            if (trabajo(parada.get_token())) ++cancelados;
            const auto acabado = Reloj::now();
            otro.join();
            EXPECT_LT(acabado - pedida, plazo) << nombre << ", " << espera.count() << " ms";
            if (acabado < pedida) break; // it ends by itself before
        }
    }
    EXPECT_GT(cancelados, 20);
}

// The later steps do not lean on the earlier ones having heard.
TEST(Cancelacion, LaOyeCadaPasoDeLaTablaClasica) {
    constexpr void (gramatica::*pasos[])() = {&gramatica::creaConjuntos, &gramatica::creaAutomata,
                                              &gramatica::creaTablaSLR};
    for (std::size_t cual = 0; cual < std::size(pasos); ++cual) {
        const auto g = gramaticaDe(u"E -> E mas T | T; T -> id");
        g->inicializaConjuntos();
        for (std::size_t antes = 0; antes < cual; ++antes) ((*g).*pasos[antes])();
        std::stop_source parada;
        parada.request_stop();
        g->cancelacion = parada.get_token();
        EXPECT_THROW(((*g).*pasos[cual])(), OperacionCancelada) << cual;
    }
}

} // namespace
