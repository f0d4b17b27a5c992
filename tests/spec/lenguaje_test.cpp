// SPDX-License-Identifier: MIT

#include "apoyo/repite.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/lexer/tipos.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"
#include "norvik/spec/datosLenguaje.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

constexpr std::u16string_view sumas = u"ExpReg d = \"[0-9]\";\r\n"
                                      u"Token num = \"<d>+\", TipoToken = TTNumero (\"número\");\r\n"
                                      u"Token mas = \"\\+\", TipoToken = TTOperador;\r\n"
                                      u"Token cad = \"'[^']*'\", TipoToken = TTCadena;\r\n"
                                      u"Token nota = \"#.*(\\n|$)\", TipoToken = TTComentarioLinea;\r\n"
                                      u"S -> E F; E -> E mas T | T; T -> num | cad; F -> Ø;";

std::string lugar(const Punto& p) {
    return std::to_string(p.linea) + ":" + std::to_string(p.columna) + "@" + std::to_string(p.desplazamiento);
}

std::string lugar(const Rango& r) {
    return lugar(r.inicio) + "-" + lugar(r.fin);
}

std::string texto(const std::vector<Diagnostico>& diagnosticos) {
    std::string lineas;
    for (const Diagnostico& d : diagnosticos) {
        lineas += aUtf8(nombreDe(d.gravedad)) + " " + aUtf8(nombreDe(d.codigo)) + " " + lugar(d.rango) + " " +
                  aUtf8(mensaje(d));
        for (const Relacionado& r : d.partes.relacionados) lineas += " | " + lugar(r.rango);
        lineas += "\n";
    }
    return lineas;
}

Lenguaje lenguajeDe(std::u16string_view especificacion) {
    auto compilacion = Lenguaje::compila(especificacion);
    EXPECT_EQ(texto(compilacion.diagnosticos), "");
    return compilacion.lenguaje.value();
}

TEST(Lenguaje, UnArbolSabeNombresNumerosYLugares) {
    const Lenguaje lenguaje = lenguajeDe(sumas);
    Analisis analisis = analiza(lenguaje, u"12 # nota\r\n+ 'a b'");
    ASSERT_TRUE(analisis) << texto(analisis.diagnosticos);
    const ArbolAnalisis arbol = std::move(analisis.arbol);
    EXPECT_EQ(aUtf8(arbol.toString()),
              "S -> E F [1]\n  E -> E mas T [2]\n    E -> T [3]\n      T -> num [4]\n"
              "        '12' (1, 1)\n    '+' (2, 1)\n    T -> cad [5]\n"
              "      'a b' (2, 3)\n  F -> Ø [6]\n");
    const Nodo raiz = arbol.raiz();
    EXPECT_EQ(lugar(raiz.rango()), "1:1@0-2:8@18");
    EXPECT_FALSE(raiz.padre());
    const Nodo suma = raiz[0];
    EXPECT_EQ(suma.numHijos(), 3U);
    EXPECT_EQ(suma[1].token(), 2);
    EXPECT_EQ(suma[1].regla(), 0);
    EXPECT_EQ(suma[1].nombre(), u"mas");
    const Nodo cadena = suma[2][0];
    EXPECT_EQ(cadena.lexema(), u"a b");
    EXPECT_EQ(cadena.texto(), u"'a b'");
    EXPECT_EQ(lugar(cadena.rango()), "2:3@13-2:8@18");
    EXPECT_EQ(cadena.padre(), suma[2]);
    const Nodo vacio = raiz[1];
    EXPECT_FALSE(vacio.esToken());
    EXPECT_EQ(vacio.numHijos(), 0U);
    EXPECT_EQ(lugar(vacio.rango()), "2:8@18-2:8@18");
    EXPECT_THROW(suma[3], IndiceNoValido);
    EXPECT_THROW(arbol[9], IndiceNoValido);
    EXPECT_THROW(ArbolAnalisis().raiz(), IndiceNoValido);
    const Vocabulario::Regla& regla = lenguaje.vocabulario().reglas[2];
    EXPECT_EQ(regla.cabeza, u"E");
    EXPECT_EQ(std::pair(regla.variable, regla.ordinal), std::pair(std::int16_t{2}, std::int16_t{2}));
}

TEST(Lenguaje, LosLugaresSonEnLasUnidadesDelTextoDado) {
    const Lenguaje lenguaje = lenguajeDe(sumas);
    const std::u16string texto16 = u"'ñ𝄞'\n+'€' + 7";
    const Analisis de16 = analiza(lenguaje, texto16);
    const Analisis de8 = analiza(lenguaje, aUtf8(texto16));
    ASSERT_TRUE(de16 && de8);
    EXPECT_EQ(lugar(de16.arbol.raiz()[0][2].rango()), "2:8@13-2:9@14");
    EXPECT_EQ(lugar(de8.arbol.raiz()[0][2].rango()), "2:10@18-2:11@19");
    // Longer than a stretch whose bytes are counted together.
    const std::u16string largo = u"'" + std::u16string(200, u'ñ') + u"'\n+ 1";
    EXPECT_EQ(lugar(analiza(lenguaje, aUtf8(largo)).arbol.raiz()[0][2].rango()), "2:3@405-2:4@406");
}

TEST(Lenguaje, LoQueEstaMalEsUnDiagnosticoConSuLugar) {
    const Lenguaje lenguaje = lenguajeDe(sumas);
    const std::tuple<std::string, std::string> casos[] = {
        {"1 +\n", "error token-inesperado 2:1@4-2:1@4 Se ha encontrado el final del fichero. Se esperaba "
                  "número, ''[^']*''.\n"},
        {"1\r\n22 33",
         "error token-inesperado 2:1@3-2:3@5 Se ha encontrado número. Se esperaba '+', final del fichero.\n"},
        {"1 + ñ", "error caracter-incorrecto 1:5@4-1:7@6 Carácter 'ñ' incorrecto.\n"},
        {"1 + 𝄞", "error caracter-incorrecto 1:5@4-1:9@8 Carácter '𝄞' incorrecto.\n"},
        {"1 +\n \xC3", "error utf8-incorrecto 2:2@5-2:3@6 Los bytes del texto no son UTF-8.\n"},
        {"", "error token-inesperado 1:1@0-1:1@0 Se ha encontrado el final del fichero. Se esperaba número, "
             "''[^']*''.\n"},
        {"1+1", ""},
    };
    for (const auto& [entrada, esperado] : casos)
        EXPECT_EQ(texto(analiza(lenguaje, entrada).diagnosticos), esperado) << entrada;
}

// The reduction that a wrong token causes before it is found wrong takes nothing from what was expected.
TEST(Lenguaje, SeEsperaLoQueDeVerdadCabe) {
    const Lenguaje lenguaje =
        lenguajeDe(u"Token a = \"a\"; Token b = \"b\"; Token c = \"c\"; Token d = \"d\"; Token x = \"x\";"
                   u"S -> a A d | b A c; A -> x;");
    EXPECT_EQ(texto(analiza(lenguaje, "a x c").diagnosticos),
              "error token-inesperado 1:5@4-1:6@5 Se ha encontrado 'c'. Se esperaba 'd'.\n");
}

TEST(Lenguaje, CompilarDiceTodoLoQueEstaMalConSuLugar) {
    const std::tuple<std::u16string, std::string, bool> casos[] = {
        {u"Token a = \"a\"\nS -> a;",
         "error token-inesperado 2:1@14-2:2@15 Se ha encontrado identificador. Se esperaba ;, (, ,.\n",
         false},
        {u"Token a = \"a\"; S -> B a | B | c c;",
         "error variable-indefinida 1:21@20-1:22@21 La variable B definida en la parte derecha de la regla S "
         "no "
         "está definida. | 1:27@26-1:28@27\n"
         "error token-indefinido 1:31@30-1:32@31 El token c, que usa una regla de S, no está definido. | "
         "1:33@32-1:34@33\n",
         false},
        {u"Token a = \"a\"; S -> c;",
         "error token-indefinido 1:21@20-1:22@21 El token c, que usa una regla de S, no está definido.\n",
         true},
        {u"ExpReg r = \"[0-9\";\nToken a = \"<r>\"; Token b = \"\\c1\"; S -> a b;",
         "error patron-incorrecto 1:12@11-1:18@17 La definición de la expresión regular "
         "'r':\r\n\t\t[0-9\r\nes "
         "incorrecta. Revísela para obtener un análisis léxico adecuado.\n"
         "error referencia-desconocida 2:11@29-2:16@34 Error en la invocación de la expresión regular 'r' "
         "desde la "
         "expresión regular 'a'.\r\nLa expresión regular 'r' o no existe o no se ha definido antes que 'a'.\n"
         "error codigo-mal-escrito 2:28@46-2:33@51 Error en el uso del operador codAscii (sintaxis: "
         "'\\c(numero)') "
         "en la expresión regular 'b'.\n",
         true},
        {u"Token a = \"a\";",
         "aviso sin-reglas 1:15@14-1:15@14 La especificación no tiene reglas: con su lenguaje no se puede "
         "analizar "
         "ningún texto.\n",
         true},
        {u"Token a = \"a\"; Token x = \"x\"; S -> A a | B a; A -> x; B -> x;",
         "aviso conflicto 1:60@59-1:61@60 Conflicto R3 / R4 en el estado 4, símbolo a.\n", true},
    };
    for (const auto& [especificacion, esperado, hayLenguaje] : casos) {
        const auto compilacion = Lenguaje::compila(especificacion);
        EXPECT_EQ(texto(compilacion.diagnosticos), esperado) << aUtf8(especificacion);
        EXPECT_EQ(compilacion.lenguaje.has_value(), hayLenguaje) << aUtf8(especificacion);
        EXPECT_EQ(static_cast<bool>(compilacion), hayLenguaje && !hayErrores(compilacion.diagnosticos));
    }
    const auto sinReglas = Lenguaje::compila(u"Token a = \"a\";");
    EXPECT_EQ(texto(analiza(*sinReglas.lenguaje, "a").diagnosticos),
              "error sin-gramatica 1:1@0-1:1@0 El lenguaje no tiene reglas con las que analizar un texto.\n");
    std::u16string muchas = u"Token a = \"a\"; S -> a T";
    for (int i = 0; i < 1000; ++i) muchas += u" | a";
    EXPECT_EQ(
        texto(Lenguaje::compila(muchas + u"; T -> a;").diagnosticos),
        "error capacidad-superada 1:16@15-1:17@16 Subíndice fuera de intervalo: la gramática pasa de 1000 "
        "reglas\n");
}

TEST(Lenguaje, LosLexemasSeLeenSinAnalizar) {
    const Lenguaje lenguaje = lenguajeDe(sumas);
    const Lexemas lexemas = norvik::lexemas(lenguaje, u"1 $ # fin\n+");
    std::string lineas;
    for (std::size_t i = 0; i < lexemas.size(); ++i) {
        const Lexema lexema = lexemas[i];
        lineas += std::to_string(lexema.token) + " " + aUtf8(lexema.nombre) +
                  (lexema.esComentario ? "* " : " ") + aUtf8(lexema.texto) + " " + lugar(lexema.rango) + "\n";
    }
    EXPECT_EQ(lineas, "1 num 1 1:1@0-1:2@1\n4 nota* # fin\n 1:5@4-2:1@10\n2 mas + 2:1@10-2:2@11\n");
    EXPECT_EQ(texto(lexemas.diagnosticos),
              "error caracter-incorrecto 1:3@2-1:4@3 Carácter '$' incorrecto.\n");
    EXPECT_THROW(lexemas[3], IndiceNoValido);
}

// A pattern takes units: half a character has all of its bytes, the other half none.
TEST(Lenguaje, MedioCaracterTieneTodosLosBytesOTodosLosDeOtro) {
    const Lenguaje lenguaje = lenguajeDe(u"Token uno = \".\"; S -> uno | S uno;");
    const Lexemas leidos = norvik::lexemas(lenguaje, "a\xF0\x9F\x98\x80z");
    std::string lugares;
    for (std::size_t i = 0; i < leidos.size(); ++i) lugares += lugar(leidos[i].rango) + " ";
    EXPECT_EQ(lugares, "1:1@0-1:2@1 1:2@1-1:6@5 1:6@5-1:6@5 1:6@5-1:7@6 ");
}

TEST(Lenguaje, LosCaracteresIncorrectosSeCuentanJuntosYNoSinFin) {
    const Lenguaje lenguaje = lenguajeDe(sumas);
    const std::string par = "\xF0\x9F\x98\x80"; // two units in UTF-16
    EXPECT_EQ(texto(norvik::lexemas(lenguaje, "$" + par + "$ $1$").diagnosticos),
              "error caracter-incorrecto 1:1@0-1:7@6 Caracteres '$" + par + "$' incorrectos.\n" +
                  "error caracter-incorrecto 1:8@7-1:9@8 Carácter '$' incorrecto.\n"
                  "error caracter-incorrecto 1:10@9-1:11@10 Carácter '$' incorrecto.\n");
    const Lexemas muchos = norvik::lexemas(lenguaje, apoyo::repite(u"$ ", 10'500) + u"1");
    EXPECT_EQ(muchos.diagnosticos.size(), 10'000U);
    EXPECT_EQ(muchos.size(), 1U);
}

// What a text comes to depends on none that came before. These make an automaton as large as it may be, and
// leave little room, or none, for the last: the exact machine would never be done with it.
TEST(Lenguaje, UnTextoDaLoMismoTrasCualesquieraOtros) {
    constexpr std::u16string_view dudosa =
        u"Token t = \"(x+x+)+y|(a|b)*a[ab][ab][ab][ab][ab][ab][ab][ab][ab][ab]\"; Token x = \"x\";"
        u"Token a = \"a\"; Token b = \"b\"; S -> x | x S;";
    const std::u16string ultimo = apoyo::repite(u"x", 60);
    const std::string esperado = texto(analiza(lenguajeDe(dudosa), ultimo).diagnosticos);
    EXPECT_EQ(esperado, "");
    std::mt19937 azar(7);
    const auto deLetras = [&](std::size_t cuantas) {
        std::u16string letras;
        while (letras.size() < cuantas) letras += azar() % 2 == 0 ? u'a' : u'b';
        return letras;
    };
    for (const std::size_t cuantas : {100U, 900U, 980U, 990U, 1000U, 3000U}) {
        const Lenguaje lenguaje = lenguajeDe(dudosa);
        for (std::size_t leidas = 0; leidas < cuantas; leidas += 20) lexemas(lenguaje, deLetras(20));
        EXPECT_EQ(texto(analiza(lenguaje, ultimo).diagnosticos), esperado) << cuantas;
    }
    const Lenguaje lenguaje = lenguajeDe(dudosa);
    lexemas(lenguaje, deLetras(5000));
    EXPECT_EQ(texto(analiza(lenguaje, ultimo).diagnosticos), esperado);
}

// Long chains of reductions, token after token, are no endless ones.
TEST(Lenguaje, MuchasReduccionesPorCaracterNoSonUnaTablaQueNoAcaba) {
    std::string cadena = "Token a = \"a\"; S -> S A0 | A0;";
    for (int i = 0; i < 150; ++i) cadena += "A" + std::to_string(i) + " -> A" + std::to_string(i + 1) + ";";
    const Analisis analisis =
        analiza(lenguajeDe(desdeUtf8(cadena + "A150 -> a;").value()), std::string(25'000, 'a'));
    EXPECT_EQ(texto(analisis.diagnosticos), "");
}

TEST(Lenguaje, UnAnalisisSePuedeCancelar) {
    const Lenguaje lenguaje = lenguajeDe(sumas);
    std::string entrada = "1";
    for (int i = 0; i < 3000; ++i) entrada += "+1";
    std::stop_source fuente;
    EXPECT_TRUE(analiza(lenguaje, entrada, {fuente.get_token()}));
    fuente.request_stop();
    for (const std::string& cancelada : {entrada, std::string("1"), std::string()})
        EXPECT_EQ(texto(analiza(lenguaje, cancelada, {fuente.get_token()}).diagnosticos),
                  "error cancelado 1:1@0-1:1@0 La operación se ha cancelado.\n");
    EXPECT_TRUE(analiza(lenguaje, entrada));
}

TEST(Lenguaje, UnaEspecificacionVaciaLoDice) {
    for (const std::u16string_view vacia : {u"", u"\r\n", u"' nada\r\n"})
        EXPECT_EQ(mensaje(Lenguaje::compila(vacia).diagnosticos.at(0)),
                  u"La especificación está vacía: no define ningún token ni tiene ninguna regla.");
}

TEST(Lenguaje, UnaCompilacionSePuedeCancelar) {
    std::stop_source fuente;
    EXPECT_TRUE(Lenguaje::compila(sumas, {{}, fuente.get_token()}));
    fuente.request_stop();
    const Compilacion cancelada = Lenguaje::compila(sumas, {{}, fuente.get_token()});
    EXPECT_FALSE(cancelada.lenguaje);
    EXPECT_EQ(texto(cancelada.diagnosticos), "error cancelado 1:1@0-1:1@0 La operación se ha cancelado.\n");
}

std::u16string moduloDe(std::u16string_view especificacion) {
    SistemaMemoria sistema(nullptr);
    CajaTexto caja;
    Norvik control(caja, sistema);
    EXPECT_TRUE(control.CargaGramatica(especificacion) && control.GeneraCompilador());
    return control.Gramatica().textoModulo(u"M", control.Lexico());
}

TEST(Lenguaje, UnModuloEnUtf8EsElMismo) {
    const std::string modulo = aUtf8(moduloDe(sumas));
    for (const std::string_view marca : {"", "\xEF\xBB\xBF"}) {
        const auto compilacion = Lenguaje::cargaModulo(std::string(marca) + modulo);
        ASSERT_TRUE(compilacion) << texto(compilacion.diagnosticos);
        EXPECT_EQ(aUtf8(compilacion.lenguaje->vocabulario().tokens[0].visible), "número");
    }
    EXPECT_EQ(texto(Lenguaje::cargaModulo("\n\xF1").diagnosticos),
              "error utf8-incorrecto 2:1@1-2:2@2 Los bytes del texto no son UTF-8.\n");
}

TEST(Lenguaje, UnModuloDaElMismoLenguajeOLoQueTieneMal) {
    const std::u16string modulo = moduloDe(sumas);
    const auto compilacion = Lenguaje::cargaModulo(modulo);
    ASSERT_TRUE(compilacion) << texto(compilacion.diagnosticos);
    const Lenguaje lenguaje = lenguajeDe(sumas);
    for (const std::u16string_view entrada : {u"1 + 'a'", u"1 +", u"1 $", u""}) {
        const Analisis esperado = analiza(lenguaje, entrada);
        const Analisis leido = analiza(*compilacion.lenguaje, entrada);
        EXPECT_EQ(leido.arbol.toString(), esperado.arbol.toString());
        EXPECT_EQ(texto(leido.diagnosticos), texto(esperado.diagnosticos));
    }
    const auto con = [&](std::u16string_view viejo, std::u16string_view nuevo) {
        std::u16string otro = modulo;
        return otro.replace(otro.find(viejo), viejo.size(), nuevo);
    };
    const std::tuple<std::u16string, std::string> casos[] = {
        {con(u"Option Explicit", u"Option"),
         "error modulo-incorrecto 2:1@0-2:1@0 se esperaba «Option Explicit»\n"},
        {con(u"SetElementoTablaSLR 1, 2, ", u"SetElementoTablaSLR 1, 2, 9"),
         "error tabla-incorrecta 1:1@0-1:1@0 La tabla SLR del lenguaje es incorrecta: el valor 96 del estado "
         "0, "
         "símbolo num, no nombra ningún estado ni regla.\n"},
    };
    for (const auto& [malo, esperado] : casos) {
        const auto fallida = Lenguaje::cargaModulo(malo);
        EXPECT_FALSE(fallida.lenguaje);
        EXPECT_EQ(texto(fallida.diagnosticos), esperado);
    }
}

TEST(Lenguaje, SeHaceDeDatosQueSalenDeUnLenguaje) {
    using namespace std::string_view_literals;
    static constexpr DatosLenguaje::Definicion definiciones[] = {
        {u"\\d+"sv, u"num"sv, Norvik_Numero, u"número"sv}};
    static constexpr std::u16string_view reglas[] = {u"S -> num"sv};
    static constexpr std::u16string_view simbolos[] = {u"num"sv, u"$"sv, u"S"sv};
    static constexpr CeldaSLR celdas[] = {{1, 1, 2}, {1, 3, 1}, {2, 2, 1000}, {3, 2, -1}};
    static constexpr DatosLenguaje buenos{definiciones, reglas, 3, 3, celdas, simbolos};
    EXPECT_EQ(aUtf8(analiza(Lenguaje::de(buenos), u"12").arbol.toString()), "S -> num [1]\n  '12' (1, 1)\n");
    EXPECT_FALSE(Lenguaje::de({}).tieneGramatica());

    static constexpr DatosLenguaje::Definicion sinPatron[] = {{u"["sv, u"num"sv, Norvik_Numero, u""sv}};
    static constexpr CeldaSLR fuera[] = {{4, 1, 1}};
    static constexpr CeldaSLR perdida[] = {{1, 1, 3}};
    const std::pair<DatosLenguaje, std::string> casos[] = {
        {{sinPatron, reglas, 3, 3, celdas, simbolos},
         "La definición de la expresión regular 'num':\r\n\t\t[\r\n"
         "es incorrecta. Revísela para obtener un análisis léxico adecuado."},
        {{definiciones, simbolos, 3, 3, celdas, simbolos},
         "No coinciden los tipos: la regla «num» no tiene «->» entre su cabeza y su cuerpo"},
        {{definiciones, reglas, 3, 3, fuera, simbolos},
         "Subíndice fuera de intervalo: en la tabla, la fila 4 no está entre 1 y 3"},
        {{definiciones, reglas, 3, 3, perdida, simbolos},
         "el valor 3 del estado 0, símbolo num, no nombra ningún estado ni regla"},
    };
    for (const auto& [malos, esperado] : casos) {
        try {
            static_cast<void>(Lenguaje::de(malos));
            ADD_FAILURE() << esperado;
        } catch (const ArgumentoNoValido& error) {
            EXPECT_EQ(aUtf8(error.texto()), esperado);
        }
    }
}

// Lists of either recursion are as deep as the text is long.
TEST(Lenguaje, UnTextoLargoYHondoTieneSuArbol) {
    for (const auto* const reglas : {u"S -> S a | a;", u"S -> a S | a;"}) {
        const Lenguaje lenguaje = lenguajeDe(std::u16string(u"Token a = \"a\";") + reglas);
        constexpr std::size_t largo = 300'000;
        const Analisis analisis = analiza(lenguaje, std::u16string(largo, u'a'));
        ASSERT_TRUE(analisis);
        EXPECT_EQ(analisis.arbol.numNodos(), 2 * largo);
        std::size_t hojas = 0;
        ArbolAnalisis::recorre(
            analisis.arbol.raiz(), [&](Nodo nodo) { hojas += nodo.esToken() ? 1U : 0U; }, [](Nodo) {});
        EXPECT_EQ(hojas, largo);
    }
}

} // namespace
