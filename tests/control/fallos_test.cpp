// SPDX-License-Identifier: MIT

// What is raised says what, where and the limit: hosts show it as it is.
#include "apoyo/anfitrion.hpp"
#include "apoyo/carpetaTemporal.hpp"

#include "norvik/base/errores.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

struct Caso {
    const char* nombre;
    std::function<void(Norvik&)> hazlo;
    std::string texto;
};

const std::string argumento = "Argumento o llamada a procedimiento no válidos: ";

void compruebaTextos(const std::vector<Caso>& casos) {
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Anfitrion a;
        try {
            caso.hazlo(a.norvik);
            ADD_FAILURE() << "no se ha lanzado nada";
        } catch (const ErrorNorvik& error) {
            EXPECT_STREQ(error.what(), caso.texto.c_str());
        }
    }
}

TEST(Fallos, DelLenguaje) {
    compruebaTextos({
        {"regla sin flecha", [](Norvik& n) { n.SetRegla(u"S a"); },
         "No coinciden los tipos: la regla «S a» no tiene «->» entre su cabeza y su cuerpo"},
        {"la única fila y otra",
         [](Norvik& n) {
             n.SetDimensionTablaSLR(1, 1);
             n.SetElementoTablaSLR(2, 1, 0);
         },
         "Subíndice fuera de intervalo: en la tabla, la fila 2 no está entre 1 y 1"},
        {"mil una reglas",
         [](Norvik& n) {
             for (int i = 0; i < 1001; ++i) n.SetRegla(u"S -> a");
         },
         "Subíndice fuera de intervalo: la gramática pasa de 1000 reglas"},
        {"Ø detrás de otro símbolo",
         [](Norvik& n) {
             n.SetRegla(u"S -> b | a Ø");
             n.GeneraCompilador();
         },
         "Subíndice fuera de intervalo: en la regla 2, S -> a Ø, Ø está junto a otros símbolos y no tiene "
         "columna en la tabla"},
        {"Ø delante de otro símbolo",
         [](Norvik& n) {
             n.SetRegla(u"S -> Ø a");
             n.GeneraCompilador();
         },
         "Subíndice fuera de intervalo: en la regla 1, S -> Ø a, Ø está junto a otros símbolos y no tiene "
         "columna en la tabla"},
        {"tipo de token", [](Norvik& n) { n.SetER(u"x", u"x", true, 40000); },
         "Desbordamiento: el tipo del token 40000 no está entre -32768 y 32767"},
        {"definición que no hay", [](Norvik& n) { n.Lexico().getTokenLenguaje(1); },
         "Índice no válido: el lenguaje tiene 0 tokens, y se pidió el 1"},
        {"posiciones al revés", [](Norvik& n) { n.Lexico().ReconoceTokens(u"ab", 3, 2); },
         argumento + "no se pueden reconocer las posiciones de 3 a 2"},
    });
}

TEST(Fallos, DelTextoYDelArbol) {
    const std::u16string largo(33000, u'a');
    std::u16string lineas;
    for (int i = 0; i < 32768; ++i) lineas += u"\r\n";
    compruebaTextos({
        {"texto largo",
         [&](Norvik& n) {
             n.Text(largo);
             n.ConstruyeArbolSintactico();
         },
         "Desbordamiento: el texto pasa de 32766 caracteres"},
        {"selección larga",
         [&](Norvik& n) {
             n.Text(largo);
             n.Find(largo);
             EXPECT_EQ(n.SelStart(), 0);
             n.SelLength();
         },
         "Desbordamiento: la longitud de la selección 33000 no está entre -32768 y 32767"},
        {"selección lejana",
         [&](Norvik& n) {
             n.Text(largo + u"b");
             n.Find(u"b");
             n.SelStart();
         },
         "Desbordamiento: el principio de la selección 33000 no está entre -32768 y 32767"},
        {"línea lejana",
         [&](Norvik& n) {
             n.Text(lineas + u"b");
             n.Find(u"b");
         },
         "Desbordamiento: el texto pasa de 32767 líneas"},
        {"línea que no hay",
         [](Norvik& n) {
             n.Text(u"a\r\nb");
             EXPECT_EQ(n.ContenidoLinea(2), u"b");
             n.ContenidoLinea(3);
         },
         argumento + "el texto no tiene la línea 3"},
        {"línea 0",
         [](Norvik& n) {
             n.Text(u"a");
             n.ContenidoLinea(0);
         },
         argumento + "el texto no tiene la línea 0"},
        {"hijo 0", [](Norvik& n) { n.GetArbolSintactico().GetHijo(0); },
         "Índice no válido: los hijos de un nodo cuentan desde 1, y se pidió el 0"},
        {"hijo de sí mismo", [](Norvik& n) { n.GetArbolSintactico().SetHijo(n.GetArbolSintactico()); },
         argumento + "un nodo no puede colgar de sí mismo ni de lo que tiene debajo"},
        {"regla con letras", [](Norvik& n) { n.GetArbolSintactico().SetNumRegla(u" -3x "); },
         "No coinciden los tipos: « -3x » no es el número de una regla"},
        {"regla enorme", [](Norvik& n) { n.GetArbolSintactico().SetNumRegla(u"32768"); },
         "Desbordamiento: el número de la regla 32768 no está entre -32768 y 32767"},
    });
}

TEST(Fallos, LosModulosTienenNombreDeModulo) {
    Anfitrion a;
    ASSERT_TRUE(a.compila(u"Token a = \"a\"; S -> a;"));
    const gramatica& g = a.norvik.Gramatica();
    const pilaTokens& lexico = a.norvik.Lexico();
    const CarpetaTemporal carpeta;
    const auto guarda = [&](std::u16string_view nombre) {
        g.GuardaModuloGramatica(nombre, lexico, carpeta / "dentro");
    };
    const auto guardaCpp = [&](std::u16string_view nombre) {
        g.GuardaModuloCpp(nombre, lexico, carpeta / "dentro");
    };
    std::filesystem::create_directory(carpeta / "dentro");
    for (const std::u16string_view nombre : {u"../fuera", u"", u"a b", u"1a", u"a.b"}) {
        EXPECT_THROW(guarda(nombre), ArgumentoNoValido) << aUtf8(nombre);
        EXPECT_THROW(guardaCpp(nombre), ArgumentoNoValido) << aUtf8(nombre);
        EXPECT_THROW(g.textoModulo(nombre, lexico), ArgumentoNoValido) << aUtf8(nombre);
        EXPECT_THROW(g.textoModuloCpp(nombre, lexico), ArgumentoNoValido) << aUtf8(nombre);
    }
    EXPECT_THROW(guarda(u"End"), ArgumentoNoValido);
    for (const std::u16string_view nombre : {u"class", u"EOF", u"main"})
        EXPECT_THROW(guardaCpp(nombre), ArgumentoNoValido) << aUtf8(nombre);
    EXPECT_EQ(carpeta.entradas(), 1U);
    EXPECT_TRUE(std::filesystem::is_empty(carpeta / "dentro"));
    guarda(u"class"); // each language has words of its own
    guardaCpp(u"End");
    EXPECT_TRUE(exists(carpeta / "dentro/class.bas"));
    EXPECT_TRUE(exists(carpeta / "dentro/End.hpp"));
}

} // namespace

TEST(Fallos, UnPunteroQueNoSeDejaDevolver) {
    struct SinPuntero : SistemaMemoria {
        SinPuntero() : SistemaMemoria([](const Mensaje&) {}) {}
        void ponPuntero(Puntero puntero) override {
            if (puntero == Puntero::Normal) throw ErrorDeFichero(u"no hay puntero");
        }
    } sistema;
    CajaTexto caja;
    auto norvik = std::make_unique<Norvik>(caja, sistema);
    for (int vez = 0; vez < 2; ++vez) {
        EXPECT_TRUE(norvik->CargaGramatica(u"Token a = \"a\"; S -> a;"));
        EXPECT_TRUE(norvik->GeneraCompilador());
        norvik->Text(u"a");
        EXPECT_TRUE(norvik->ConstruyeArbolSintactico());
    }
    norvik.reset();
}
