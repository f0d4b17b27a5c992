// SPDX-License-Identifier: MIT

// The command as a person runs it: words in, streams and exit status out.

#include "apoyo/carpetaTemporal.hpp"
#include "apoyo/proceso.hpp"
#include "apoyo/repite.hpp"
#include "norvik/base/ficheros.hpp"

#include <norvik/version.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <string>
#include <sys/resource.h>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

using namespace apoyo;
using Palabras = std::vector<std::string>;

const std::string especificacion = R"x(Token si = "si", TipoToken = TTPalabraReservada;
Token mas = "\+", TipoToken = TTOperador;
Token com = "#.*(\n|$)", TipoToken = TTComentarioLinea;
Token cad = "'[^']*'", TipoToken = TTCadena;
Token num = "[0-9]+", TipoToken = TTNumero ("número");
Token id = "[a-z]+" ("identificador");
E -> E mas T | T;
T -> num | cad | si id | Ø;
)x";

const std::string ambigua = "Token a = \"a\";\nToken b = \"b\";\nS -> a S b S | a S | b;\n";

struct Orden : testing::Test {
    std::string pon(const std::string& nombre, const std::string& bytes) const {
        return carpeta_.pon(nombre, bytes).string();
    }
    std::string ruta(const std::string& nombre) const { return (carpeta_ / nombre).string(); }

    // An order about a text in the language above.
    Resultado sobre(const std::string& texto, Palabras opciones, const Entorno& entorno = {}) const {
        opciones.insert(opciones.begin() + 1, {lenguaje_, pon("texto", texto)});
        return ejecuta(opciones, entorno);
    }

    CarpetaTemporal carpeta_;
    std::string lenguaje_ = pon("lenguaje.nvk", especificacion);
};

void comprueba(const Resultado& resultado, int estado, const std::string& salida,
               const std::string& errores) {
    EXPECT_EQ(resultado.estado, estado);
    EXPECT_EQ(resultado.salida, salida);
    EXPECT_EQ(resultado.errores, errores);
}

TEST_F(Orden, AnalizaEnSusTresFormatos) {
    comprueba(sobre("1 + si\n x", {"analiza"}), 0,
              "1. E -> E mas T\n"
              "├─ 2. E -> T\n"
              "│  └─ 3. T -> num\n"
              "│     └─ '1' (Línea 1, Columna 1)\n"
              "├─ '+' (Línea 1, Columna 3)\n"
              "└─ 5. T -> si id\n"
              "   ├─ 'si' (Línea 1, Columna 5)\n"
              "   └─ 'x' (Línea 2, Columna 2)\n",
              "");
    comprueba(sobre("'\"ñ\t'", {"analiza", "--formato", "json"}), 0,
              R"({"regla":2,"cabeza":"E","cuerpo":"T","hijos":[{"regla":4,"cabeza":"T","cuerpo":"cad",)"
              R"("hijos":[{"lexema":"\"ñ\t","linea":1,"columna":1}]}]})"
              "\n",
              "");
    comprueba(sobre("", {"analiza", "--formato=lineas"}), 0,
              "{\"nodo\":1,\"padre\":0,\"regla\":2,\"cabeza\":\"E\",\"cuerpo\":\"T\"}\n"
              "{\"nodo\":2,\"padre\":1,\"regla\":6,\"cabeza\":\"T\",\"cuerpo\":\"Ø\"}\n",
              "");
}

TEST_F(Orden, UnArbolMuyHondoSeEscribeEnteroYSinCuadrado) {
    const std::string suma = "1" + repite("+1", 9999);
    const Resultado dibujo = sobre(suma, {"analiza"});
    EXPECT_EQ(dibujo.estado, 0);
    EXPECT_EQ(std::count(dibujo.salida.begin(), dibujo.salida.end(), '\n'), 39999);
    EXPECT_LT(dibujo.salida.size(), 40000U * 500);
    const Resultado json = sobre(suma, {"analiza", "--formato", "json"});
    EXPECT_EQ(json.estado, 0);
    EXPECT_EQ(std::count(json.salida.begin(), json.salida.end(), '{'), 39999);
}

TEST_F(Orden, LexemasHastaElFinalOElError) {
    comprueba(sobre("si # nota\r\n'a' +", {"lexemas", "--formato", "json"}), 0,
              "{\"token\":\"si\",\"lexema\":\"si\",\"linea\":1,\"columna\":1}\n"
              "{\"token\":\"cad\",\"lexema\":\"a\",\"linea\":2,\"columna\":1}\n"
              "{\"token\":\"mas\",\"lexema\":\"+\",\"linea\":2,\"columna\":5}\n"
              "{\"token\":\"EOF\",\"lexema\":\"EOF\",\"linea\":2,\"columna\":6}\n",
              "");
    comprueba(sobre("7\n ?", {"lexemas"}), 1,
              "Línea    Columna  Token         Lexema\n"
              "1        1        num           7\n"
              "2        2        Norvik_ERROR  ?\n",
              "Error (Línea 2, Columna 2): caracter '?' incorrecto.\n");
}

TEST_F(Orden, ColoreaUnTextoAunqueTengaErrores) {
    const std::string texto = "si<+&?\n# dos\nfin";
    const std::string ansi = "\x1B[38;2;0;0;128msi\x1B[39m<\x1B[38;2;128;0;0m+\x1B[39m&?\n"
                             "\x1B[38;2;0;128;0m# dos\x1B[39m\nfin\n";
    comprueba(sobre(texto, {"colorea", "--formato", "ansi"}), 0, ansi, "");
    comprueba(sobre(texto, {"colorea"}), 0, texto + "\n", "");
    EXPECT_EQ(sobre(texto, {"colorea"}, {.salida = Destino::Terminal, .variables = {"TERM=xterm"}}).salida,
              ansi);
    const Resultado html = sobre(texto, {"colorea", "--formato", "html"});
    EXPECT_EQ(html.salida.substr(0, 32), "<!DOCTYPE html>\n<html lang=\"es\">");
    EXPECT_NE(html.salida.find("<pre>\n<span style=\"color:#000080\">si</span>&lt;"
                               "<span style=\"color:#800000\">+</span>&amp;?\n"
                               "<span style=\"color:#008000\"># dos</span>\nfin</pre>"),
              std::string::npos)
        << html.salida;
    const std::string direccion = {'\xE2', '\x80', '\xAE'};
    const Resultado aislado = sobre("a" + direccion + "b", {"colorea", "--formato", "html"});
    EXPECT_NE(aislado.salida.find("a<bdi>" + direccion + "</bdi>b"), std::string::npos);
}

// Whatever language, text and path hold, a terminal is given line ends, tabulators and visible characters.
TEST_F(Orden, UnTerminalNoRecibeControles) {
    const std::string direccion = {'\xE2', '\x80', '\xAE'}; // the text after it goes from right to left
    const std::string malo = "a\x1B]0;t\x07\xC2\x9B\x32J" + direccion + "\x7F";
    const std::string modulo =
        pon(malo + ".nvk", R"(Token a = "\c(27)x\c(7)y", TipoToken = TTOperador (")" + malo + R"(");
Token b = "b|)" + malo + R"(";
S -> a b;
)");
    const std::string texto = pon(malo + ".txt", "\x1Bx\x07y b " + malo + "\n");
    const std::string bien = pon("bien.txt", "\x1Bx\x07yb");
    std::filesystem::create_directory(carpeta_ / "bien");
    pon("bien/" + malo, "\x1Bx\x07y " + malo);
    const Palabras ordenes[] = {{"analiza", modulo, texto},
                                {"analiza", modulo, bien},
                                {"analiza", modulo, texto, "--formato", "json"},
                                {"lexemas", modulo, texto},
                                {"lexemas", modulo, bien},
                                {"colorea", modulo, texto, "--color", "nunca"},
                                {"colorea", modulo, texto, "--formato", "html"},
                                {"informe", modulo, "-o", "-"},
                                {"modulo", modulo, "M", "-o", "-"},
                                {"modulo", modulo, malo},
                                {"revisa", modulo},
                                {"revisa", texto},
                                {"colorea", modulo, texto, "--color", "siempre"},
                                {"analiza", modulo, texto, "--color", "siempre"},
                                {"revisa", modulo, "--color", "siempre"},
                                {"revisa", modulo, "--formato", "json"},
                                {"revisa", texto, "--formato", "sarif"},
                                {"informe", modulo, "--formato", "html", "-o", "-"},
                                {"lexemas", modulo, texto, "--formato", "json"},
                                {"analiza", modulo, bien, "--formato", "lineas"},
                                {"prueba", modulo, carpeta_.ruta()},
                                {"prueba", modulo, carpeta_.ruta(), "--metodo", malo},
                                {"frases", modulo},
                                {"analiza", ruta(malo + "no hay"), texto},
                                {malo}};
    for (const Palabras& orden : ordenes) {
        const Entorno terminal{
            .salida = Destino::Terminal, .errores = Destino::Terminal, .variables = {"TERM=dumb"}};
        const Resultado resultado = ejecuta(orden, terminal);
        std::string todo = resultado.salida + resultado.errores;
        EXPECT_FALSE(todo.empty());
        if (orden.back() == "siempre") { // colours are ours
            const std::string sinColores = std::regex_replace(todo, std::regex("\x1B\\[[0-9;]*m"), "");
            EXPECT_NE(std::exchange(todo, sinColores), sinColores) << orden.front();
        }
        for (std::size_t i = 0; i < todo.size(); ++i) {
            const auto c = static_cast<unsigned char>(todo[i]);
            const bool esRetorno = c == '\r' && todo[i + 1] == '\n';
            const bool esC1 = c == 0xC2 && static_cast<unsigned char>(todo[i + 1]) < 0xA0;
            EXPECT_FALSE((c < ' ' && c != '\n' && c != '\t' && !esRetorno) || c == 0x7F || esC1)
                << orden.front() << " at " << i << ": " << testing::PrintToString(todo);
        }
        EXPECT_EQ(todo.find(direccion), std::string::npos) << orden.front();
    }
}

TEST_F(Orden, InformeEscribeElFicheroYDiceLosConflictos) {
    comprueba(
        ejecuta({"informe", lenguaje_, "-o", carpeta_.ruta()}), 0,
        "La gramática carece de problema alguno.\n",
        "aviso: El método clásico da por primeros de E cad, num, si, Ø, y son cad, mas, num, si, Ø. Con "
        "la línea '% metodo: lalr al principio son los exactos.\n");
    comprueba(ejecuta({"informe", lenguaje_, "-o", carpeta_.ruta(), "--metodo", "lalr"}), 0,
              "La gramática carece de problema alguno.\n", "");
    EXPECT_NE(bytesDe(carpeta_ / "informeGramatica.txt").find("T -> si id\r\n"), std::string::npos);

    const Resultado conflictos = ejecuta({"informe", pon("a.nvk", ambigua), "-o", "-"});
    EXPECT_EQ(conflictos.estado, 0);
    EXPECT_EQ(conflictos.salida.substr(0, 37), "Informe sobre la gramática actual:\r\n");
    EXPECT_EQ(conflictos.errores.substr(0, 35), "Problemas detectados:\r\n\r\nConflicto ");
    const Resultado enFichero = ejecuta({"informe", ruta("a.nvk"), "-o", carpeta_.ruta()});
    EXPECT_EQ(conflictos.errores, enFichero.salida + enFichero.errores);
    EXPECT_EQ(
        ejecuta({"informe", pon("vacia.nvk", ""), "-o", "-", "--formato", "html", "--metodo", "lalr"}).estado,
        0);
}

TEST_F(Orden, ElModuloDaLoMismoQueLaEspecificacion) {
    comprueba(ejecuta({"modulo", lenguaje_, "Suma", "-o", carpeta_.ruta()}), 0, ruta("Suma.bas") + "\n", "");
    const Resultado flujo = ejecuta({"modulo", "-", "Suma", "-o", "-"}, {.entrada = especificacion});
    comprueba(flujo, 0, flujo.salida, "");
    EXPECT_EQ(flujo.salida.substr(0, 28), "Attribute VB_Name = \"Suma\"\r\n");
    const Resultado cpp = ejecuta({"modulo", lenguaje_, "Suma", "--lenguaje", "cpp", "-o", carpeta_.ruta()});
    comprueba(cpp, 0, ruta("Suma.hpp") + "\n", "");
    EXPECT_NE(bytesDe(carpeta_ / "Suma.hpp").find("namespace Suma {"), std::string::npos);

    for (const std::string texto : {"1 + SI x", "1 1", "?", "'a' # b"})
        for (const Palabras& orden : {Palabras{"analiza", "--formato", "json"}, Palabras{"lexemas"},
                                      Palabras{"colorea", "--formato", "ansi"}}) {
            const Resultado esperado = sobre(texto, orden);
            Palabras conModulo = orden;
            conModulo.insert(conModulo.begin() + 1, {ruta("Suma.bas"), ruta("texto")});
            comprueba(ejecuta(conModulo), esperado.estado, esperado.salida, esperado.errores);
        }
}

TEST_F(Orden, ElMetodoLoEligeLaOpcionOLaEspecificacion) {
    const std::string reglas =
        "Token a = \"a\"; Token b = \"b\"; Token d = \"d\";\nS -> A a | b; A -> S d | A d d | Ø;\n";
    const std::string sinMetodo = pon("sin.nvk", reglas);
    const std::string conLalr = pon("con.nvk", "'% metodo: lalr\n" + reglas);
    const std::string texto = pon("texto", "bda");
    EXPECT_EQ(ejecuta({"analiza", sinMetodo, texto}).estado, 1);
    EXPECT_EQ(ejecuta({"analiza", conLalr, texto}).estado, 0);
    EXPECT_EQ(ejecuta({"analiza", conLalr, texto, "--metodo", "clasico"}).estado, 1);
    for (const std::string metodo : {"slr", "lalr", "lr1"})
        EXPECT_EQ(ejecuta({"analiza", sinMetodo, texto, "--metodo", metodo}).estado, 0) << metodo;
    comprueba(ejecuta({"informe", sinMetodo, "--metodo", "ll"}), 2, "",
              "norvik: «ll» no es un valor de --metodo (clasico, slr, lalr, lr1)\n");
}

TEST_F(Orden, FrasesSonDelLenguaje) {
    const Resultado pocas = ejecuta({"frases", lenguaje_});
    EXPECT_EQ(pocas.estado, 0);
    EXPECT_EQ(pocas.errores, "");
    const Resultado malas = ejecuta({"frases", lenguaje_, "--mal", "--cuantas", "5", "--semilla", "7"});
    EXPECT_EQ(std::ranges::count(malas.salida, '\n'), 5);
    EXPECT_EQ(ejecuta({"frases", lenguaje_, "--mal", "--cuantas", "5", "--semilla", "7"}).salida,
              malas.salida);
    for (const auto& [textos, estado] : {std::pair(pocas.salida, 0), std::pair(malas.salida, 1)})
        for (std::size_t i = 0; i < textos.size(); i = textos.find('\n', i) + 1)
            EXPECT_EQ(sobre(textos.substr(i, textos.find('\n', i) - i), {"analiza"}).estado, estado);
    comprueba(ejecuta({"frases", lenguaje_, "--cuantas", "0"}), 2, "",
              "norvik: «0» no es un valor de --cuantas (un número del 1 al 1000000)\n");
    const Resultado ninguna = ejecuta({"frases", pon("n.nvk", "Token a = \"a\";\nS -> a S;\n")});
    comprueba(ninguna, 0, "", "aviso: no se ha encontrado ningún texto que use la regla 1. S -> a S\n");
    EXPECT_EQ(ejecuta({"frases", pon("mala.nvk", "S -> ;")}).estado, 1);
}

TEST_F(Orden, PruebaComparaLosTextosConLoQueSeEspera) {
    for (const char* const carpeta : {"t/bien/dentro", "t/mal"})
        std::filesystem::create_directories(carpeta_ / carpeta);
    pon("t/bien/suma", "1 + si x\n");
    pon("t/bien/dentro/cadena", "'a'");
    pon("t/mal/final", "1 2 +");
    const std::string uso = "Ningún texto usa la regla 6. T -> Ø\n";
    const Palabras prueba{"prueba", lenguaje_, ruta("t")};
    comprueba(ejecuta(prueba), 0, "3 de 3 textos pasan.\n" + uso, "");
    Palabras actualiza = prueba;
    actualiza.emplace_back("--actualiza");
    comprueba(ejecuta(actualiza), 0, "3 de 3 textos pasan.\n" + uso, "");
    EXPECT_EQ(leeBytes(ruta("t/bien/suma.arbol")), sobre("1 + si x\n", {"analiza"}).salida);
    EXPECT_EQ(leeBytes(ruta("t/mal/final.mal")).find("1:3: error: "), 0U);
    comprueba(ejecuta(prueba), 0, "3 de 3 textos pasan.\n" + uso, "");
    // Now each goes wrong in its way.
    pon("t/bien/suma", "1 + si y\n");
    pon("t/bien/dentro/cadena", "'a");
    pon("t/mal/final", "1");
    const Resultado mal = ejecuta({"prueba", lenguaje_, ruta("t"), "--junit", ruta("j.xml")});
    EXPECT_EQ(mal.estado, 1);
    EXPECT_NE(mal.salida.find("suma: su árbol difiere, línea 8: se esperaba «"), std::string::npos)
        << mal.salida;
    EXPECT_NE(mal.salida.find("cadena: no se acepta: 1:1: error: "), std::string::npos) << mal.salida;
    EXPECT_NE(mal.salida.find("final: se acepta\n0 de 3 textos pasan.\n"), std::string::npos) << mal.salida;
    const std::string junit = leeBytes(ruta("j.xml"));
    EXPECT_NE(junit.find("tests=\"3\" failures=\"3\""), std::string::npos) << junit;
    EXPECT_EQ(ejecuta({"prueba", lenguaje_, ruta("nada")}).estado, 2);
    std::filesystem::create_symlink("no hay", carpeta_ / "t/mal/colgado");
    EXPECT_EQ(ejecuta(prueba).estado, 1);
    std::filesystem::create_symlink("bucle", carpeta_ / "t/bien/bucle");
    comprueba(ejecuta(prueba), 2, "",
              "norvik: No se puede leer «" + ruta("t/bien/bucle") + "»: demasiados enlaces simbólicos\n");
}

TEST_F(Orden, RevisaDiceLoQueHayConSuLineaEnCadaFormato) {
    lenguaje_ = pon("lalr.nvk", "'% metodo: lalr\n" + especificacion);
    comprueba(ejecuta({"revisa", lenguaje_}), 0, "", "");
    const std::string rara = pon("rara.nvk", "Token a = \"a\";\nToken b = \"b\";\nS -> a;\n");
    const std::string aviso =
        rara + ":2:7: aviso: Ninguna regla usa el token b: no se acepta ningún texto que lo tenga. "
               "Úselo o quítelo. [token-sin-usar]\nToken b = \"b\";\n      ^\n";
    comprueba(ejecuta({"revisa", rara, lenguaje_}), 0, aviso, "");
    comprueba(ejecuta({"revisa", "--estricto", lenguaje_, rara}), 1, aviso, "");
    const std::string mala = pon("mala.nvk", "Token a = \"a*+\";\nS -> a B;\n");
    const Resultado json = ejecuta({"revisa", mala, "--formato", "json"});
    EXPECT_EQ(json.estado, 1);
    EXPECT_EQ(json.salida.find("{\"codigo\":\"patron-incorrecto\",\"gravedad\":\"error\""), 0U)
        << json.salida;
    EXPECT_NE(json.salida.find("}\n{\"codigo\":\"variable-indefinida\""), std::string::npos) << json.salida;
    const Resultado sarif = ejecuta({"revisa", rara, mala, "--formato", "sarif"});
    EXPECT_EQ(sarif.estado, 1);
    EXPECT_EQ(sarif.salida.find("{\"version\":\"2.1.0\""), 0U);
    EXPECT_NE(sarif.salida.find("\"ruleId\":\"token-sin-usar\",\"level\":\"warning\""), std::string::npos);
    EXPECT_EQ(ejecuta({"revisa", "-", "-"}).estado, 2);
    comprueba(ejecuta({"revisa"}), 2, "", "norvik: falta ESPECIFICACION (norvik revisa --help lo explica)\n");
}

TEST_F(Orden, RevisaCuentaLosConflictos) {
    const std::string sino = pon("sino.nvk", "Token si = \"si\";\nToken no = \"no\";\nToken a = \"a\";\n"
                                             "S -> si S | si S no S | a;\n");
    const Resultado clasico = ejecuta({"revisa", sino});
    const Resultado lalr = ejecuta({"revisa", sino, "--metodo", "lalr"});
    EXPECT_EQ(clasico.salida.find(sino + ":4:6: aviso: La tabla clásica calla un conflicto"), 0U);
    EXPECT_EQ(lalr.salida.find(sino + ":4:6: aviso: Conflicto D5 / R1 en el estado 4"), 0U) << lalr.salida;
    for (const std::string& salida : {clasico.salida, lalr.salida}) {
        EXPECT_NE(salida.find("\n      si si S • no S\n"), std::string::npos) << salida;
        EXPECT_NE(salida.find("      S\n      ├─ si\n      └─ S\n         └─ si S no S\n"),
                  std::string::npos);
    }
    const Resultado json = ejecuta({"revisa", sino, "--formato", "json"});
    EXPECT_NE(json.salida.find(R"("historias":[{"clase":"ambigua","estado":-1,"simbolo":"no")"),
              std::string::npos)
        << json.salida;
    EXPECT_NE(
        json.salida.find(R"({"frase":["si","si","S","no","S"],"punto":3,"arbol":{"simbolo":"S","regla":1,)"),
        std::string::npos)
        << json.salida;
}

TEST_F(Orden, RevisaNoRepiteLaMismaHistoria) {
    const std::string tokens = "Token a = \"a\";\nToken b = \"b\";\nToken c = \"c\";\n";
    const std::pair<std::string, int> filas[] = {
        {"S -> S S | a | b | c X | c Y;\nX -> a | b;\nY -> a | b;\n", 8}, // once for each state
        {"S -> c X a | c Y a | c Z a | c X | c Y | c Z;\nX -> b;\nY -> b;\nZ -> b;\n",
         0},                              // two reductions, in turn
        {"E -> E a E | E b E | c;\n", 0}, // what is meant differs by operator
    };
    for (const auto& [reglas, repetidas] : filas) {
        std::string salida =
            ejecuta({"revisa", pon("dudosa.nvk", tokens + reglas), "--metodo", "lalr"}).salida;
        int veces = 0;
        for (std::size_t lugar = 0;
             (lugar = salida.find("\n  Se cuenta como el anterior.\n", lugar)) != std::string::npos; ++lugar)
            ++veces;
        EXPECT_EQ(veces, repetidas) << salida;
        EXPECT_NE(salida.find("Conflicto"), std::string::npos);
    }
}

TEST_F(Orden, LaEntradaEstandarSirveDeFichero) {
    const std::string texto = pon("texto", "si x");
    const std::string salida = ejecuta({"analiza", lenguaje_, texto}).salida;
    comprueba(ejecuta({"analiza", "-", texto}, {.entrada = especificacion}), 0, salida, "");
    comprueba(ejecuta({"analiza", lenguaje_, "-"}, {.entrada = "si x\r\n"}), 0, salida, "");
}

TEST_F(Orden, ElErrorDelTextoEsSuMensajeConElLugarEnUnTerminal) {
    const std::string mensaje =
        "Error: Se ha encontrado identificador (Línea 2, Columna 4). Se esperaba '+'.\n";
    comprueba(sobre("1 +\n\t1 x", {"analiza"}), 1, "", mensaje);
    const Entorno terminal{.errores = Destino::Terminal, .variables = {"TERM=dumb"}};
    EXPECT_EQ(sobre("1 +\n\t1 x", {"analiza"}, terminal).errores,
              mensaje + ruta("texto") +
                  ":2:4: error: Se ha encontrado identificador. Se esperaba '+', final del fichero. "
                  "[token-inesperado]\n 1 x\n   ^\narreglo: quite 'x'\n");
    // A lexeme may read like a place.
    const Resultado enganoso = sobre("'a' +\n'b' +\n'c' '(Línea 1, Columna 1)'", {"analiza"}, terminal);
    EXPECT_NE(enganoso.errores.find("texto:3:5: error: "), std::string::npos);
    EXPECT_NE(enganoso.errores.find("\n'c' '(Línea 1, Columna 1)'\n    ^^^^^^^^^^^^^^^^^^^^^^\narreglo: "),
              std::string::npos);
    comprueba(sobre("1 + ?", {"analiza"}), 1, "", "Error (Línea 1, Columna 5): caracter '?' incorrecto.\n");
    comprueba(ejecuta({"analiza", "-", lenguaje_}, {.entrada = "Token a\n= 7;"}), 1, "",
              "Error: Se ha encontrado numero entero (Línea 2, Columna 3). Se esperaba cadena.\n");
}

TEST_F(Orden, UnTerminalVeTodosLosErroresConSusColoresYSinControles) {
    const std::string texto = "1 x + \x1B[7 + 1\n2 + 2";
    const auto errores = [&](const Palabras& opciones, const std::vector<std::string>& variables) {
        Palabras orden{"analiza"};
        orden.insert(orden.end(), opciones.begin(), opciones.end());
        return sobre(texto, orden, {.errores = Destino::Terminal, .variables = variables}).errores;
    };
    const std::string liso = errores({}, {"TERM=dumb"});
    const std::string lugar = "\n" + ruta("texto");
    for (const std::string& parte :
         {lugar + ":1:3: error: ", lugar + ":1:7: error: ", lugar + ":2:1: error: "})
        EXPECT_NE(liso.find(parte), std::string::npos) << liso;
    EXPECT_NE(liso.find("\n1 x + ␛[7 + 1\n      ^^\narreglo: quite '␛['\n"), std::string::npos) << liso;
    EXPECT_EQ(liso.find('\x1B'), std::string::npos);
    EXPECT_EQ(errores({}, {"NO_COLOR=1", "TERM=xterm"}), liso);
    EXPECT_EQ(errores({"--color", "nunca"}, {"TERM=xterm"}), liso);
    const std::string pintado = errores({}, {"TERM=xterm"});
    EXPECT_NE(pintado.find("\x1B[1;31merror:\x1B[0m "), std::string::npos) << pintado;
    EXPECT_EQ(errores({"--color", "siempre"}, {"TERM=dumb"}), pintado);
    comprueba(sobre(texto, {"analiza", "--color", "rojo"}), 2, "",
              "norvik: «rojo» no es un valor de --color (auto, siempre, nunca)\n");
}

TEST_F(Orden, ElErrorDelTextoSaleTambienComoJson) {
    for (const std::string formato : {"json", "lineas"})
        comprueba(sobre("1 +\n 1 x", {"analiza", "--formato", formato}), 1,
                  R"({"diagnosticos":[{"codigo":"token-inesperado","gravedad":"error","mensaje":)"
                  R"("Se ha encontrado identificador. Se esperaba '+', final del fichero.","fichero":")" +
                      ruta("texto") +
                      R"(","rango":{"inicio":{"linea":2,"columna":4,"desplazamiento":8},)"
                      R"("fin":{"linea":2,"columna":5,"desplazamiento":9}},"hallado":"identificador",)"
                      R"("esperados":["'+'","final del fichero"],"relacionados":[],"arreglos":[)"
                      R"({"titulo":"quite 'x'","cambios":[{"rango":{"inicio":{"linea":2,"columna":4,)"
                      R"("desplazamiento":8},"fin":{"linea":2,"columna":5,"desplazamiento":9}},)"
                      R"("texto":""}]}]}]})"
                      "\n",
                  "Error: Se ha encontrado identificador (Línea 2, Columna 4). Se esperaba '+'.\n");
}

TEST_F(Orden, ElErrorDelLenguajeTieneEstado1) {
    const std::string texto = pon("texto", "b");
    const std::string titulo = "Atención: ";
    const Resultado definicion = ejecuta(
        {"lexemas", pon("l.nvk", "Token a = \"<x>\";\nToken b = \"b\";\nS -> b;"), texto, "--formato=json"});
    EXPECT_EQ(definicion.estado, 1);
    EXPECT_EQ(definicion.errores.substr(0, titulo.size()), titulo);
    EXPECT_EQ(definicion.salida.substr(0, 14), "{\"token\":\"b\",\"");
    const Resultado variable =
        ejecuta({"modulo", pon("l.nvk", "Token b = \"b\";\nS -> b X;"), "M", "-o", carpeta_.ruta()});
    EXPECT_EQ(variable.estado, 1);
    EXPECT_EQ(variable.salida, "");
    EXPECT_NE(variable.errores.find('X'), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(carpeta_ / "M.bas"));
    const Resultado modulo =
        ejecuta({"analiza", pon("m.BAS", "Attribute VB_Name = \"M\"\r\nEnd Sub"), texto});
    EXPECT_EQ(modulo.estado, 1);
    EXPECT_EQ(modulo.errores.substr(0, 22), "Línea 2 del módulo: ");
}

TEST_F(Orden, LaLineaIncorrectaSeExplicaEnUnaLinea) {
    const std::pair<Palabras, std::string> lineas[] = {
        {{}, "falta la orden (norvik --help las enumera)"},
        {{"compila"}, "orden desconocida: «compila»"},
        {{"analiza"}, "falta LENGUAJE (norvik analiza --help lo explica)"},
        {{"modulo", "x"}, "falta NOMBRE (norvik modulo --help lo explica)"},
        {{"informe", "x", "y"}, "sobra «y»"},
        {{"informe", "x", "--lenguaje", "vb"}, "opción desconocida: «--lenguaje»"},
        {{"analiza", "x", "y", "--formato"}, "falta el valor de la opción «--formato»"},
        {{"lexemas", "x", "y", "--formato", "arbol"}, "«arbol» no es un valor de --formato (tabla, json)"},
        {{"analiza", "-", "-"}, "la entrada estándar («-») solo puede estar en lugar de un fichero"},
        {{"modulo", "x", "2lenguaje"}, "El nombre seleccionado para el lenguaje es incorrecto"},
        {{"modulo", "x", "../y"}, "El nombre seleccionado para el lenguaje es incorrecto"},
        {{"modulo", "x", "class", "--lenguaje", "cpp"},
         "El nombre seleccionado para el lenguaje es incorrecto"},
        {{"--help=quizás"}, "--help y --version no llevan valor"},
        {{"--version=3"}, "--help y --version no llevan valor"},
        {{"-hx"}, "opción desconocida: «-x»"},
    };
    for (const auto& [palabras, error] : lineas)
        comprueba(ejecuta(palabras), 2, "", "norvik: " + error + "\n");
}

TEST_F(Orden, AyudaYVersion) {
    for (const Palabras& palabras :
         {Palabras{"--help"}, Palabras{"analiza", "--help", "sobra"}, Palabras{"-h"}}) {
        const Resultado ayuda = ejecuta(palabras, {.variables = {"LANG=C", "LC_ALL=C"}});
        EXPECT_EQ(ayuda.estado, 0);
        EXPECT_NE(ayuda.salida.find("norvik analiza"), std::string::npos);
    }
    comprueba(ejecuta({"--version"}), 0, "norvik " NORVIK_VERSION "\n", "");
    comprueba(ejecuta({"--version"}, {.salida = Destino::DiscoLleno}), 2, "",
              "norvik: No se puede escribir en la salida estándar: no queda espacio en el disco\n");
}

TEST_F(Orden, UnFicheroLlamadoComoUnaOrdenEsUnFichero) {
    comprueba(ejecuta({"analiza", "colorea", "informe"}), 2, "",
              "norvik: No se puede leer «informe»: no existe\n");
}

TEST_F(Orden, LosFicherosImposiblesTienenSuMensaje) {
    const std::string texto = pon("texto", "1");
    const std::pair<Palabras, std::string> filas[] = {
        {{"analiza", ruta("no"), texto}, "No se puede leer «" + ruta("no") + "»: no existe"},
        {{"lexemas", lenguaje_, carpeta_.ruta()},
         "No se puede leer «" + carpeta_.ruta().string() + "»: es una carpeta"},
        {{"informe", lenguaje_, "-o", ruta("no")},
         "No se puede escribir en la carpeta «" + ruta("no") + "»: no existe"},
        {{"modulo", lenguaje_, "M", "-o", texto},
         "No se puede escribir en la carpeta «" + texto + "»: no es una carpeta"},
        {{"colorea", "/dev/zero", texto}, "No se puede leer «/dev/zero»: el fichero es demasiado grande"},
        {{"analiza", lenguaje_, ruta("a\nb")}, "No se puede leer «" + ruta("a␊b") + "»: no existe"},
    };
    for (const auto& [palabras, error] : filas)
        comprueba(ejecuta(palabras), 2, "", "norvik: " + error + "\n");
    const std::string salida = "norvik: No se puede escribir en la salida estándar: ";
    for (const auto& [destino, causa] : {std::pair{Destino::DiscoLleno, "no queda espacio en el disco\n"},
                                         std::pair{Destino::LectorQueSeFue, "el lector se ha ido\n"},
                                         std::pair{Destino::Cerrado, "no está abierto\n"}})
        for (const Palabras& palabras :
             {Palabras{"analiza", lenguaje_, texto}, Palabras{"informe", lenguaje_, "-o", "-"}})
            comprueba(ejecuta(palabras, {.salida = destino}), 2, "", salida + causa);
    EXPECT_EQ(ejecuta({"analiza", lenguaje_, ruta("no")}, {.errores = Destino::LectorQueSeFue}).estado, 2);
}

TEST_F(Orden, UnLimiteDeTamanoNoMataLaOrden) {
    const std::string informe = pon("informeGramatica.txt", "antes");
    rlimit limite{};
    getrlimit(RLIMIT_FSIZE, &limite);
    const rlimit pequeno{200, limite.rlim_max};
    setrlimit(RLIMIT_FSIZE, &pequeno);
    const Resultado resultado = ejecuta({"informe", lenguaje_, "-o", carpeta_.ruta().string()});
    setrlimit(RLIMIT_FSIZE, &limite);
    EXPECT_EQ(resultado.estado, 2);
    EXPECT_EQ(resultado.errores.find("norvik: No se puede escribir «" + informe +
                                     "»: el fichero es demasiado grande\n"),
              0U);
    EXPECT_EQ(bytesDe(informe), "antes");
}

TEST_F(Orden, LosTextosImposiblesTienenSuMensaje) {
    const std::string nulo = std::string("Error (Línea 1, Columna 1): caracter '") + '\0' + "' incorrecto.\n";
    const std::string desbordamiento = "norvik: Desbordamiento: el texto pasa de 32766 caracteres\n";
    comprueba(sobre(std::string(1, '\0'), {"analiza"}), 1, "", nulo);
    comprueba(sobre("\xC3(", {"analiza"}), 1, "", "Error (Línea 1, Columna 1): caracter 'Ã' incorrecto.\n");
    comprueba(sobre("\xF0\x9F\x98\x80", {"analiza"}), 1, "",
              "Error (Línea 1, Columna 1): caracter '\xF0\x9F\x98\x80' incorrecto.\n");
    for (const std::size_t largo : {32767U, 10'000'000U})
        comprueba(sobre(std::string(largo, ' '), {"analiza"}), 2, "", desbordamiento);
    EXPECT_EQ(sobre(std::string(32766, ' '), {"analiza"}).estado, 0);
    EXPECT_EQ(ejecuta({"analiza", pon("l.nvk", "a\x01\xFF\n#"), ruta("texto")}).estado, 1);
}

} // namespace
