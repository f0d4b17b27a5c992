// SPDX-License-Identifier: MIT

#include "apoyo/earley.hpp"
#include "apoyo/repite.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

using Nombres = std::vector<std::u16string>;

Lenguaje lenguajeDe(std::u16string_view especificacion, Metodo metodo = Metodo::Clasico) {
    auto compilacion = Lenguaje::compila(especificacion, {metodo});
    EXPECT_TRUE(compilacion.lenguaje) << aUtf8(especificacion);
    return compilacion.lenguaje.value();
}

constexpr std::u16string_view asignaciones =
    u"Token fin = \";\"; Token mas = \"\\+\"; Token abre = \"\\(\"; Token cierra = \"\\)\"; Token es = "
    u"\":=\";"
    u"Token si = \"si\"; Token num = \"[0-9]+\" (\"número\"); Token id = \"[a-z]+\" (\"nombre\");"
    u"L -> L S | S; S -> id es E fin | si E S; E -> E mas T | T; T -> num | id | abre E cierra;";

// Each error: its place, what is offered, and what the first repair makes of the text.
std::string errores(const Analisis& analisis) {
    std::string lineas;
    for (const Diagnostico& d : analisis.diagnosticos) {
        lineas += std::to_string(d.rango.inicio.desplazamiento) + "-" +
                  std::to_string(d.rango.fin.desplazamiento) + " " + aUtf8(nombreDe(d.codigo)) + ":";
        for (const Arreglo& arreglo : d.partes.arreglos) lineas += " " + aUtf8(arreglo.titulo) + ";";
        lineas += "\n";
    }
    return lineas;
}

std::u16string conElPrimero(std::u16string texto, const Diagnostico& error) {
    const auto& cambios = error.partes.arreglos.front().cambios;
    const std::vector<Cambio> alReves(cambios.rbegin(), cambios.rend());
    for (const Cambio& cambio : alReves) {
        const auto inicio = static_cast<std::size_t>(cambio.rango.inicio.desplazamiento);
        texto.replace(inicio, static_cast<std::size_t>(cambio.rango.fin.desplazamiento) - inicio,
                      cambio.texto);
    }
    return texto;
}

Nombres hojas(const ArbolAnalisis& arbol) {
    Nombres nombres;
    for (std::size_t i = 0; i < arbol.numNodos(); ++i)
        if (arbol[i].esToken()) nombres.emplace_back(arbol[i].nombre());
    return nombres;
}

TEST(Reparaciones, CadaErrorDiceComoSeArreglaYElAnalisisSigue) {
    const Lenguaje lenguaje = lenguajeDe(asignaciones);
    const std::tuple<std::u16string_view, std::string, std::u16string_view> casos[] = {
        {u"x := 1 y := 2;", "7-8 token-inesperado: inserte ';';\n", u"x := 1; y := 2;"},
        {u"x := (1 + (2;", "12-13 token-inesperado: inserte ')' ')';\n", u"x := (1 + (2));"},
        {u"x := 1;;", "7-8 token-inesperado: quite ';';\n", u"x := 1;"},
        {u"x = 1;", "2-3 caracter-incorrecto: cambie '=' por ':=';\n", u"x := 1;"},
        {u"x + 1;", "2-3 token-inesperado: cambie '+' por ':='; ", u"x := 1;"},
        {u"x := 1 + @ @# 2;", "9-13 caracter-incorrecto: quite '@ @#';\n", u"x := 1 +  2;"},
        {u"x := ; y := 3;", "5-6 token-inesperado: inserte nombre; inserte número;\n", {}},
        {u"x := 1", "6-6 token-inesperado: inserte ';';\n", u"x := 1;"},
        {u"x(1);", "1-2 token-inesperado: inserte ':='", u"x:=(1);"},
        {u"", "0-0 token-inesperado:", {}},
        {u"x := 1 y := 2 z := (3;\n",
         "7-8 token-inesperado: inserte ';';\n14-15 token-inesperado: inserte ';';\n"
         "21-22 token-inesperado: inserte ')';\n",
         {}},
    };
    for (const auto& [texto, esperado, arreglado] : casos) {
        const Analisis analisis = analiza(lenguaje, texto);
        EXPECT_EQ(errores(analisis).substr(0, esperado.size()), esperado) << aUtf8(texto);
        EXPECT_FALSE(analisis);
        EXPECT_TRUE(analisis.arbol.esVacio());
        EXPECT_FALSE(analisis.reparado.esVacio()) << aUtf8(texto);
        if (arreglado.empty()) continue;
        EXPECT_EQ(aUtf8(conElPrimero(std::u16string(texto), analisis.diagnosticos.front())),
                  aUtf8(arreglado));
    }
}

TEST(Reparaciones, ElArbolReparadoMarcaLoInsertado) {
    const Lenguaje lenguaje = lenguajeDe(asignaciones);
    const std::string texto = "ñ := (1; # x := 2 2;";
    const Analisis analisis =
        analiza(lenguajeDe(u"Token fin = \";\"; Token n = \"[0-9]\"; L -> L n fin | n fin;"), "1 2;");
    EXPECT_EQ(
        aUtf8(analisis.reparado.toString()),
        "L -> L n fin [1]\n  L -> n fin [2]\n    '1' (1, 1)\n    '' (1, 2)\n  '2' (1, 3)\n  ';' (1, 4)\n");
    const Nodo puesto = analisis.reparado.raiz()[0][1];
    EXPECT_TRUE(puesto.esInsertado());
    EXPECT_EQ(puesto.nombre(), u"fin");
    EXPECT_EQ(puesto.rango().inicio, puesto.rango().fin);
    EXPECT_FALSE(analisis.reparado.raiz()[0][0].esInsertado());
    EXPECT_FALSE(analisis.reparado.raiz().esInsertado());
    // Bytes, where the text is given in UTF-8.
    const Analisis de8 = analiza(lenguaje, texto);
    EXPECT_EQ(errores(de8).substr(0, 25), "0-2 caracter-incorrecto: ");
    EXPECT_EQ(errores(de8).find("8-9"), errores(de8).find('\n') + 1) << errores(de8);
}

TEST(Reparaciones, SePuedePedirSoloElPrimerError) {
    const Lenguaje lenguaje = lenguajeDe(asignaciones);
    const OpcionesAnalisis primero{.errores = ErroresBuscados::Primero};
    for (const std::u16string_view texto : {u"x := 1 y := 2 z := 3", u"@ := 1 ; y"}) {
        const Analisis todos = analiza(lenguaje, texto);
        const Analisis uno = analiza(lenguaje, texto, primero);
        ASSERT_EQ(uno.diagnosticos.size(), 1U);
        EXPECT_GT(todos.diagnosticos.size(), 1U);
        EXPECT_EQ(uno.diagnosticos[0].rango, todos.diagnosticos[0].rango);
        EXPECT_TRUE(uno.diagnosticos[0].partes.arreglos.empty());
        EXPECT_TRUE(uno.reparado.esVacio());
    }
}

// A text as deep as it is long, and as wrong as it is long.
TEST(Reparaciones, NiLaHonduraNiLosMuchosErroresImportan) {
    const Lenguaje lenguaje = lenguajeDe(asignaciones);
    const std::u16string hondo =
        u"x := " + apoyo::repite(u"(", 30000) + u"1" + apoyo::repite(u")", 29999) + u";";
    for (int vez = 0; vez < 2; ++vez) {
        const Analisis analisis = analiza(lenguaje, hondo);
        EXPECT_EQ(errores(analisis), "60005-60006 token-inesperado: inserte ')';\n");
        EXPECT_EQ(hojas(analisis.reparado).size(), 60004U);
    }
    const Analisis muchos = analiza(lenguaje, apoyo::repite(u"x := 1 ", 300));
    EXPECT_EQ(muchos.diagnosticos.size(), 300U);
    EXPECT_FALSE(muchos.reparado.esVacio());
}

TEST(Reparaciones, LoQueNoSeArreglaATiempoLoDiceYAcaba) {
    const Lenguaje lenguaje = lenguajeDe(u"Token a = \"a\"; Token b = \"b\"; S -> a S b | a b;");
    const Analisis analisis = analiza(lenguaje, apoyo::repite(u"a", 100'000));
    EXPECT_EQ(errores(analisis), "100000-100000 token-inesperado:\n100000-100000 reparacion-agotada:\n");
    EXPECT_EQ(analisis.diagnosticos.back().gravedad, Gravedad::Nota);
    EXPECT_TRUE(analisis.reparado.esVacio());
    EXPECT_EQ(hojas(analiza(lenguaje, u"aaab").reparado).size(), 6U);
    std::stop_source fuente;
    fuente.request_stop();
    EXPECT_EQ(errores(analiza(lenguaje, u"b", {fuente.get_token()})), "0-0 cancelado:\n");
}

// Tables that go on reducing, that accept nothing, that say little.
TEST(Reparaciones, TodaGramaticaLlegaASuFin) {
    for (const std::u16string_view reglas :
         {u"S -> S | a;", u"S -> S S | a | Ø;", u"S -> a S;", u"S -> Ø;", u"S -> A S | a; A -> Ø;",
          u"S -> b S | b T; T -> a T;", u"S -> a | si S | si S b S;"})
        for (const auto& [nombre, metodo] : metodos) {
            const auto compilacion = Lenguaje::compila(
                u"Token a = \"a\"; Token b = \"b\"; Token si = \"si\"; " + std::u16string(reglas), {metodo});
            if (!compilacion.lenguaje) continue;
            for (const std::u16string_view texto : {u"", u"b a a b", u"si si b b a", u"?"})
                for (int vez = 0; vez < 2; ++vez) {
                    const Analisis analisis = analiza(*compilacion.lenguaje, texto);
                    EXPECT_NE(static_cast<bool>(analisis), !analisis.diagnosticos.empty())
                        << aUtf8(reglas) << aUtf8(nombre) << aUtf8(texto);
                }
        }
}

// What each example's small texts have, as tokens and as texts that can be changed.
struct Muestra {
    Lenguaje lenguaje;
    Nombres tokens;
    std::vector<std::u16string> lexemas;

    explicit Muestra(const std::filesystem::path& texto, Lenguaje suyo) : lenguaje(std::move(suyo)) {
        const Lexemas todos = norvik::lexemas(lenguaje, leeTexto(texto));
        for (std::size_t i = 0; i < todos.size(); ++i) {
            if (todos[i].esComentario) continue;
            tokens.emplace_back(todos[i].nombre);
            lexemas.emplace_back(todos[i].texto);
        }
    }
    static std::u16string junta(const std::vector<std::u16string>& lexemas) {
        std::u16string texto;
        for (const auto& lexema : lexemas) texto += lexema + u" ";
        return texto;
    }
};

std::vector<Muestra> muestras() {
    const std::filesystem::path raiz = std::filesystem::path(NORVIK_SOURCE_DIR) / "ejemplos";
    std::vector<Muestra> todas;
    for (const auto& [nombre, texto] : {std::pair<std::string, std::string>{"calculadora", "triangulo.txt"},
                                        {"json", "minimo.json"},
                                        {"configuracion", "servidor.ini"},
                                        {"pascal", "hola.pas"},
                                        {"c", "hola.c"},
                                        {"consulta", "ventas.sql"}})
        todas.emplace_back(raiz / nombre / "bien" / texto,
                           Lenguaje::deFichero(raiz / nombre / (nombre + ".nvk")).lenguaje.value());
    return todas;
}

const Reglas& reglasDe(const Lenguaje& lenguaje) {
    return lenguaje.datos().reglas.valores().reglas;
}

TEST(Reparaciones, ElTextoReparadoEsDeLaGramatica) {
    std::mt19937 azar(7);
    int reparados = 0;
    for (const Muestra& muestra : muestras()) {
        const std::size_t largo = std::min<std::size_t>(muestra.lexemas.size(), 60);
        for (int caso = 0; caso < 12; ++caso) {
            std::vector<std::u16string> lexemas = muestra.lexemas;
            const auto lugar = static_cast<std::ptrdiff_t>(azar() % largo);
            const std::u16string otro = lexemas[azar() % lexemas.size()];
            if (caso % 3 == 0) lexemas.erase(lexemas.begin() + lugar);
            if (caso % 3 == 1) lexemas.insert(lexemas.begin() + lugar, otro);
            if (caso % 3 == 2) lexemas[static_cast<std::size_t>(lugar)] = otro;
            const std::u16string texto = Muestra::junta(lexemas);
            const Analisis analisis = analiza(muestra.lenguaje, texto);
            // On a slow machine the budget may end first.
            if (analisis || analisis.reparado.esVacio()) continue;
            ++reparados;
            const Nombres suyas = hojas(analisis.reparado);
            EXPECT_TRUE(apoyo::deriva(reglasDe(muestra.lenguaje), suyas)) << aUtf8(texto);
            const auto& arreglos = analisis.diagnosticos.front().partes.arreglos;
            ASSERT_FALSE(arreglos.empty()) << aUtf8(texto);
            if (analisis.diagnosticos.size() > 1 ||
                std::ranges::any_of(arreglos.front().cambios, &Cambio::conNombres))
                continue;
            const Analisis arreglado =
                analiza(muestra.lenguaje, conElPrimero(texto, analisis.diagnosticos.front()));
            EXPECT_TRUE(arreglado) << aUtf8(texto);
            EXPECT_EQ(hojas(arreglado.arbol), suyas) << aUtf8(texto);
        }
    }
    EXPECT_GT(reparados, 40);
}

// How a list of what is expected names a lexeme, when it names it alone.
std::u16string nombreEn(const Lenguaje& lenguaje, const std::u16string& lexema) {
    const Lexemas suyo = lexemas(lenguaje, lexema);
    const auto& token = lenguaje.vocabulario().tokens[static_cast<std::size_t>(suyo[0].token) - 1];
    return token.visible.empty() ? u"'" + lexema + u"'" : token.visible;
}

// Every token of a text is tried by a parse of its own behind what stands before a place.
TEST(Reparaciones, LoEsperadoEsLoQueOtroAnalisisAdmite) {
    const OpcionesAnalisis primero{.errores = ErroresBuscados::Primero};
    for (const Muestra& muestra : muestras()) {
        const std::set<std::u16string> distintos(muestra.lexemas.begin(), muestra.lexemas.end());
        std::u16string hasta;
        for (std::size_t n = 0; n < std::min<std::size_t>(muestra.lexemas.size(), 25); ++n) {
            const Analisis cortado = analiza(muestra.lenguaje, hasta, primero);
            std::set<std::u16string> caben;
            std::set<std::u16string> nombres;
            for (const std::u16string& lexema : distintos) {
                const Analisis con = analiza(muestra.lenguaje, hasta + lexema, primero);
                nombres.insert(nombreEn(muestra.lenguaje, lexema));
                if (con || con.diagnosticos[0].rango.inicio.desplazamiento > std::ssize(hasta))
                    caben.insert(nombreEn(muestra.lenguaje, lexema));
            }
            std::set<std::u16string> esperados;
            if (!cortado)
                for (const std::u16string& esperado : cortado.diagnosticos[0].partes.esperados)
                    if (nombres.contains(esperado)) esperados.insert(esperado);
            if (cortado) caben.clear();
            EXPECT_EQ(esperados, caben) << aUtf8(hasta);
            hasta += muestra.lexemas[n] + u" ";
        }
    }
}

} // namespace
