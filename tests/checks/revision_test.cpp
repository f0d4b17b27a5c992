// SPDX-License-Identifier: MIT

#include "apoyo/repite.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/checks/muestrasPatron.hpp"
#include "norvik/checks/nombreCercano.hpp"
#include "norvik/checks/revision.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

// One line a finding: «3:7 token-tapado si nombre [2:7]», the parts that it has and the other places.
std::string hallazgos(std::u16string_view especificacion) {
    std::string lineas;
    const auto lugar = [](const Rango& r) {
        return std::to_string(r.inicio.linea) + ":" + std::to_string(r.inicio.columna);
    };
    for (const Diagnostico& d : revisa(especificacion)) {
        // What is ambiguous has some besides.
        if (d.codigo == Codigo::Conflicto || d.codigo == Codigo::ConflictoCallado ||
            d.codigo == Codigo::FraseRechazada)
            continue;
        lineas += lugar(d.rango) + " " + aUtf8(nombreDe(d.codigo));
        for (const auto* parte : {&d.partes.nombre, &d.partes.hallado})
            if (!parte->empty()) lineas += " " + aUtf8(*parte);
        for (const auto& esperado : d.partes.esperados) lineas += " ~" + aUtf8(esperado);
        for (const Relacionado& r : d.partes.relacionados) lineas += " [" + lugar(r.rango) + "]";
        lineas += "\n";
    }
    return lineas;
}

// Each fault alone in a specification that has nothing else.
TEST(Revision, CadaFaltaEnSuLugarYSolaElla) {
    const std::pair<std::u16string, std::string> casos[] = {
        {u"Token a = \"a\";\nS -> a S | Ø;", ""},
        {u"Token a = \"a\";\nToken b = \"b\";\nS -> a;", "2:7 token-sin-usar b\n"},
        {u"Token a = \"a\";\nToken c = \"#.*\", TipoToken = TTComentarioLinea;\nS -> a;", ""},
        {u"Token a = \"a\";", "1:15 sin-reglas\n"},
        {u"ExpReg r = \"x\";\nToken a = \"a\";\nS -> a;", "1:8 auxiliar-sin-usar r\n"},
        {u"ExpReg r = \"x\";\nToken a = \"a<r>\";\nS -> a;", ""},
        {u"Token id = \"[a-z]+\";\nToken si = \"SI\";\nS -> id | si;", "2:7 token-tapado si SI ~id [1:7]\n"},
        {u"Token id = \"[a-z]+\";\nToken dos = \"[a-f]{2}\";\nS -> id | dos;",
         "2:7 token-tapado dos ff ~id [1:7]\n"},
        {u"Token id = \"[a-z]+\";\nToken hex = \"[0-9a-f]+\";\nToken si = \"si\\+\";\nS -> id | hex | si;",
         ""},
        {u"Token a = \"a\";\nToken ab = \"a(?=b)\";\nS -> a | ab;", ""}, // no text of its own to try
        {u"Token a = \"a\";\nToken b = \"b\";\nToken a = \"a\";\nS -> a | b;",
         "3:7 token-repetido a [1:7]\n"},
        {u"Token a = \"a\";\nToken a = \"A+b\";\nS -> a;", ""}, // two ways to write it
        {u"Token a = \"a*\";\nS -> a;", "1:11 patron-vacio a\n"},
        {u"Token a = \"a\";\nS -> a;\nB -> a;", "3:1 variable-sin-usar B\n"},
        {u"Token a = \"a\";\nS -> a;\nB -> a B | a;", "3:1 variable-sin-usar B\n"},
        {u"Token a = \"a\";\nS -> a;\nB -> a C;\nC -> a B | a;",
         "3:1 variable-inalcanzable B S\n4:1 variable-inalcanzable C S\n"},
        {u"Token a = \"a\";\nS -> a | B;\nB -> a B;", "3:1 variable-improductiva B\n"},
        {u"Token a = \"a\";\nS -> B;\nB -> a | C;\nC -> a C D;\nD -> Ø;", "4:1 variable-improductiva C\n"},
        {u"Token a = \"a\";\nS -> a | S;", "2:1 ciclo S S => S\n"},
        {u"Token a = \"a\";\nS -> B a;\nB -> a | C D;\nC -> Ø;\nD -> C B;", "3:1 ciclo B B => D => B\n"},
        {u"Token a = \"a\";\nS -> a S a | Ø;", ""},
        {u"Token a = \"a\";\nS -> a |\n  Ø | a;", "3:7 regla-repetida S a [2:6]\n"},
        {u"Token a = \"a\";\nS -> a b;\nb -> a;", "2:8 token-indefinido S b ~a\n3:1 cabeza-minuscula b\n"},
        {u"Token a = \"a\";\nS -> B;\nB -> a;\nS -> a;\n", "4:1 cabeza-dispersa S [2:1]\n"},
        {u"Token ni-o = \"a\";\nS -> a;", "1:7 nombre-incorrecto ni-o '-'\n"},
        {u"Token n-i-o = \"a\";\nS -> a;", "1:7 nombre-incorrecto n-i-o '-'\n"},
        {u"Token a = \"a\";\nS -> a | # ;",
         "2:10 caracter-incorrecto '#' ~identificador ~simbolo de cadena vacía (Ø:Alt 0216)\n"},
        {u"'% metdo: lalr\nToken a = \"a\";\nS -> a;", "1:1 directiva-desconocida metdo ~metodo\n"},
        {u"'% metodo: lalr \nToken a = \"a\";\nS -> a;",
         "1:1 directiva-incorrecta metodo lalr  ~clasico ~slr ~lalr ~lr1\n"},
        {u"'% izquierda: a\nToken a = \"a\";\nS -> a;", "1:1 directiva-sin-efecto izquierda\n"},
        {u"'% metodo: slr\n'% derecha: a  m\u00e1s\nToken a = \"a\";\nToken mas = \"m\";\nS -> a mas;",
         "2:1 directiva-incorrecta derecha m\u00e1s ~mas\n"},
        {u"Token a = \"a\";\n'% metodo: lalr\n' % metodo: lalr\nS -> a;", "2:1 directiva-tardia metodo\n"},
        {u"'%%% metodo: lalr\n'%metodo: lalr\n'% una nota: a\n'nada\nToken a = \"a\";\nS -> a;", ""},
        {u"'% metodo: lalr\n'% conflictos: 9\nToken a = \"a\";\nS -> S S | a;",
         "2:1 conflictos-distintos 1 ~9\n"},
        {u"'% metodo: lalr\n'% conflictos: 1\nToken a = \"a\";\nS -> S S | a;", ""},
    };
    for (const auto& [especificacion, esperados] : casos)
        EXPECT_EQ(hallazgos(especificacion), esperados) << aUtf8(especificacion);
}

// The place in the definition, through references and codes, lines of its own and characters outside ASCII.
TEST(Revision, UnPatronMalEscritoSeSitua) {
    const std::pair<std::u16string, std::string> casos[] = {
        {u"x*+", "2:14 delante no hay nada que se pueda repetir"},
        {u"a{3,2}", "2:13 el mínimo de veces pasa del máximo"},
        {u"a{70000}", "2:13 se pueden pedir hasta 65535 veces"},
        {u"<r>\\c(65)(ñ(a)", "2:21 este paréntesis no se cierra"},
        {u"\\\\n)", "2:15 este paréntesis no cierra ninguno"},
        {u"(?<a)", "2:12 detrás de '(?' solo caben ':', '=' y '!'"},
        {u"b\n<r>[^a\\]", "3:4 este corchete no se cierra"},
        {u"[a-zz-a]", "2:16 este intervalo va de un carácter a otro anterior"},
        {u"[a\\q]", "2:14 detrás de '\\' esta letra o cifra no significa nada"},
        {u"\\x4", "2:12 faltan cifras hexadecimales: son dos detrás de '\\x' y cuatro detrás de '\\u'"},
        {u"(a)\\2\\1", "2:15 no hay tantos paréntesis a los que referirse"},
        {u"<r>*", "2:15 delante no hay nada que se pueda repetir"},
        {u"ab\\c(300)", "2:14 el código de un carácter no pasa de 255"},
        {u"ab\\c300", "2:14 se escribe '\\c(numero)'"},
        {u"ab\\cx65)", "2:14 se escribe '\\c(numero)'"},
    };
    for (const auto& [patron, esperado] : casos) {
        const auto todos = revisa(u"ExpReg r = \"[ab]+\";\nToken a = \"" + patron + u"\";\nS -> a;");
        const auto d = std::ranges::find_if(todos, [](const Diagnostico& suyo) {
            return suyo.codigo == Codigo::PatronIncorrecto || suyo.codigo == Codigo::CodigoMalEscrito;
        });
        ASSERT_NE(d, todos.end()) << aUtf8(patron);
        ASSERT_EQ(d->partes.relacionados.size(), 1U) << aUtf8(patron);
        const Relacionado& donde = d->partes.relacionados[0];
        EXPECT_EQ(donde.rango, d->rango);
        EXPECT_EQ(std::to_string(donde.rango.inicio.linea) + ":" +
                      std::to_string(donde.rango.inicio.columna) + " " + aUtf8(donde.texto),
                  esperado)
            << aUtf8(patron);
    }
}

TEST(Revision, LoQueNadieConoceSeSituaYSeSugiere) {
    const std::pair<std::u16string, std::string> casos[] = {
        {u"Token num = \"a\";\nS -> Expresio num;\nExpresion -> num;",
         "2:6 variable-indefinida S Expresio ~Expresion\n3:1 variable-sin-usar Expresion\n"},
        {u"Token nombre = \"a\";\nS -> nmobre nombre;", "2:6 token-indefinido S nmobre ~nombre\n"},
        {u"Token nombre = \"a\";\nS -> otro nombre;", "2:6 token-indefinido S otro\n"},
        {u"ExpReg digito = \"[0-9]\";\nToken a = \"<digito>x<digit>\";\nS -> a;",
         "2:21 referencia-desconocida a digit ~digito\n"},
        {u"Token a = \"x<r>\";\nExpReg r = \"y\";\nS -> a;", "1:13 referencia-desconocida a r [2:8]\n"},
    };
    for (const auto& [especificacion, esperados] : casos) {
        const std::string dicho = hallazgos(especificacion);
        EXPECT_EQ(dicho.substr(0, esperados.size()), esperados) << aUtf8(especificacion) << dicho;
    }
    const std::vector<std::u16string> nombres = {u"Sentencia", u"Sentencias", u"si"};
    EXPECT_EQ(nombreCercano(u"sentenca", nombres), u"Sentencia");
    EXPECT_EQ(nombreCercano(u"Senetcnias", nombres), u"Sentencias");
    EXPECT_EQ(nombreCercano(u"is", nombres), u"si");
    EXPECT_EQ(nombreCercano(u"no", nombres), u"");
}

// With many unknown names and many known ones the first are told what they may mean, and none is left out.
TEST(Revision, ConMuchosNombresDesconocidosSeSugiereEnLosPrimeros) {
    std::u16string especificacion = u"Token unNombreLargo = \"a\";\nS -> unNombreLargo";
    for (int i = 0; i < 300; ++i) especificacion += u" unNombreLargo" + aTexto(std::int64_t{i});
    std::size_t desconocidos = 0;
    std::size_t sugeridos = 0;
    for (const Diagnostico& d : revisa(especificacion + u";")) {
        if (d.codigo != Codigo::TokenIndefinido) continue;
        ++desconocidos;
        if (d.partes.esperados == std::vector<std::u16string>{u"unNombreLargo"}) ++sugeridos;
    }
    EXPECT_EQ(desconocidos, 300U);
    EXPECT_EQ(sugeridos, 100U);
}

// A language that is right is told nothing, Pascal's conflict apart.
TEST(Revision, NadaQueDecirDeLosEjemplos) {
    int ejemplos = 0;
    for (const auto& sitio : std::filesystem::recursive_directory_iterator(NORVIK_SOURCE_DIR "/ejemplos")) {
        if (sitio.path().extension() != ".nvk") continue;
        ++ejemplos;
        for (const Diagnostico& d : revisa(leeTexto(sitio.path())))
            EXPECT_EQ(d.codigo, Codigo::Conflicto) << sitio.path() << aUtf8(mensaje(d));
    }
    EXPECT_GE(ejemplos, 6);
}

TEST(Revision, GramaticasHostilesAcabanYElMensajeNoTieneHuecos) {
    const std::u16string cien =
        u"Token a = \"a\";\n" + apoyo::repite(u"S -> S S | S | Ø | T; T -> S T;\n", 100);
    const std::u16string hondo =
        u"Token a = \"" + apoyo::repite(u"(", 500) + u"a" + apoyo::repite(u"|b)*", 500) + u"\"; S -> a;";
    std::u16string escala = u"Token a = \"a\";\n";
    for (int i = 0; i < 400; ++i) escala += u"V" + aTexto(i) + u" -> V" + aTexto(i + 1) + u" | a;\n";
    for (const auto& especificacion : {cien, hondo, escala + u"V400 -> V0;"})
        for (const Diagnostico& d : revisa(especificacion))
            EXPECT_EQ(mensaje(d).find_first_of(u"{}"), std::u16string::npos) << aUtf8(mensaje(d));
}

TEST(MuestrasDePatron, SonDelPatronYSiempreLasMismas) {
    for (const std::u16string_view patron :
         {u"a|bc", u"[^a]x{2,4}", u"(a|b)\\1", u"(\\d+\\.)*\\d", u"\\bfin\\b"}) {
        const auto muestras = muestrasDe(patron, true, 10, Presupuesto());
        EXPECT_FALSE(muestras.empty()) << aUtf8(patron);
        EXPECT_EQ(muestras, muestrasDe(patron, true, 10, Presupuesto()));
    }
    EXPECT_EQ(muestrasDe(u"a|bc", true, 10, Presupuesto()).size(), 2U);
    EXPECT_TRUE(muestrasDe(u"a(?=b)", true, 10, Presupuesto()).empty());
    EXPECT_TRUE(muestrasDe(u"[]", true, 10, Presupuesto()).empty());
}

} // namespace
