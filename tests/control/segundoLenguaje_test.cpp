// SPDX-License-Identifier: MIT

// A second language in a control is as in a new one, whatever was loaded before and by whatever way.
#include "apoyo/anfitrion.hpp"
#include "modulo_c.hpp" // written by the command
#include "modulo_pascal.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/spec/lectorModulo.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

struct Lenguaje {
    std::string nombre;
    std::function<void(Norvik&)> cabecera;

    std::filesystem::path carpeta() const {
        return std::filesystem::path(NORVIK_SOURCE_DIR) / "ejemplos" / nombre;
    }
    std::u16string especificacion() const { return leeTexto(carpeta() / (nombre + ".nvk")); }
    std::u16string modulo() const {
        Anfitrion a;
        EXPECT_TRUE(a.compila(especificacion()));
        return a.norvik.Gramatica().textoModulo(u"M", a.norvik.Lexico());
    }
};

const Lenguaje lenguajes[] = {{"pascal", [](Norvik& control) { modulo_pascal::CargaLenguaje(control); }},
                              {"c", [](Norvik& control) { modulo_c::CargaLenguaje(control); }}};

/// The calls by which a host makes a language by itself, and then generates it: those of the definitions and
/// the rules, as they stand in another control.
void conLlamadas(const Lenguaje& l, Norvik& control) {
    Anfitrion a;
    EXPECT_TRUE(a.compila(l.especificacion()));
    for (const auto& d : a.norvik.Lexico().expresionesRegulares())
        control.SetER(d->expresion, d->nomER, !d->nomToken.empty(), d->tipo, d->pseudoToken, d->base);
    const gramatica& g = a.norvik.Gramatica();
    for (std::int16_t r = 1; r <= g.getNumReglas(); ++r) {
        const std::u16string regla(g.GetLeftRegla(r));
        control.SetRegla(regla + u" -> " + std::u16string(g.GetRightRegla(r)), r);
    }
    EXPECT_TRUE(control.GeneraCompilador());
}

using Via = std::function<void(Norvik&, const Lenguaje&)>;
const std::pair<const char*, Via> vias[] = {{"especificación",
                                             [](Norvik& control, const Lenguaje& l) {
                                                 EXPECT_TRUE(control.CargaGramatica(l.especificacion()));
                                                 EXPECT_TRUE(control.GeneraCompilador());
                                             }},
                                            {"módulo",
                                             [](Norvik& control, const Lenguaje& l) {
                                                 control.OlvidaLenguaje();
                                                 EXPECT_FALSE(CargaModulo(l.modulo(), control));
                                             }},
                                            {"cabecera",
                                             [](Norvik& control, const Lenguaje& l) {
                                                 control.OlvidaLenguaje();
                                                 l.cabecera(control);
                                             }},
                                            {"llamadas", [](Norvik& control, const Lenguaje& l) {
                                                 control.OlvidaLenguaje();
                                                 conLlamadas(l, control);
                                             }}};

/// Whatever tells one language from another.
std::string retrato(Anfitrion& a, const Lenguaje& l) {
    const gramatica& g = a.norvik.Gramatica();
    std::u16string todo = g.textoProblemas() + g.textoInforme() + g.textoModulo(u"M", a.norvik.Lexico());
    for (const char* carpeta : {"bien", "mal"}) {
        for (const auto& entrada : std::filesystem::directory_iterator(l.carpeta() / carpeta)) {
            a.analiza(leeTexto(entrada.path()));
            todo += a.norvik.GetmensajeError() + a.norvik.GetArbolSintactico().toString();
        }
    }
    return aUtf8(todo);
}

/// «E(T(1)+E(2))», of a small tree.
std::string forma(const Arbol& nodo) {
    if (nodo.GetEsHoja()) return aUtf8(nodo.GetLexema());
    std::string texto = aUtf8(nodo.GetNomRegla()) + "(";
    for (const Arbol* const hijo : nodo.hijos()) texto += forma(*hijo);
    return texto + ")";
}

TEST(SegundoLenguaje, EsComoElPrimero) {
    for (const Lenguaje& segundo : lenguajes) {
        for (const auto& [otraVia, carga] : vias) {
            Anfitrion nuevo;
            carga(nuevo.norvik, segundo);
            const std::string esperado = retrato(nuevo, segundo);
            for (const auto& [unaVia, cargaAntes] : vias) {
                const Lenguaje& primero = lenguajes[&segundo == lenguajes ? 1 : 0];
                Anfitrion a;
                cargaAntes(a.norvik, primero);
                a.analiza(u"1");
                carga(a.norvik, segundo);
                EXPECT_EQ(retrato(a, segundo), esperado)
                    << primero.nombre << " (" << unaVia << "), " << segundo.nombre << " (" << otraVia << ")";
            }
        }
    }
}

// Turn and turn about, by each way: the trees are those of the sums that were loaded last.
TEST(SegundoLenguaje, SumasPorLaIzquierdaYPorLaDerechaUnaYOtraVez) {
    const std::string tokens = R"(Token mas = "\+"; Token n = "[0-9]"; )";
    const std::pair<std::string, std::string> sumas[] = {
        {tokens + "E -> E mas T | T; T -> n;", "E(E(E(T(1))+T(2))+T(3))"},
        {tokens + "E -> T mas E | T; T -> n;", "E(T(1)+E(T(2)+E(T(3))))"}};
    std::u16string modulos[2];
    for (const std::size_t i : {0U, 1U}) {
        Anfitrion a;
        ASSERT_TRUE(a.compila(desdeUtf8(sumas[i].first).value()));
        modulos[i] = a.norvik.Gramatica().textoModulo(u"M", a.norvik.Lexico());
    }
    Anfitrion a;
    for (std::size_t vez = 0; vez < 10; ++vez) {
        const std::size_t cual = vez % 2;
        if (vez % 4 < 2) {
            ASSERT_TRUE(a.compila(desdeUtf8(sumas[cual].first).value())) << vez;
        } else {
            a.norvik.OlvidaLenguaje();
            ASSERT_FALSE(CargaModulo(modulos[cual], a.norvik)) << vez;
        }
        ASSERT_TRUE(a.analiza(u"1+2+3")) << vez;
        EXPECT_EQ(forma(a.norvik.GetArbolSintactico()), sumas[cual].second) << vez;
    }
}

TEST(SegundoLenguaje, LaQuintaCargaEsComoLaPrimera) {
    for (const auto& [via, carga] : vias) {
        Anfitrion a;
        std::string primero;
        for (int vez = 1; vez <= 5; ++vez) {
            carga(a.norvik, lenguajes[1]);
            const std::string suyo = retrato(a, lenguajes[1]);
            if (vez == 1) primero = suyo;
            EXPECT_EQ(suyo, primero) << via << ", " << vez;
        }
    }
}

TEST(SegundoLenguaje, OlvidadoNoQuedaNada) {
    Anfitrion a;
    const std::string vacio =
        a.lexico() + a.reglas() + aUtf8(a.tabla() + a.norvik.Gramatica().textoInforme());
    ASSERT_TRUE(a.compila(lenguajes[0].especificacion()));
    EXPECT_NE(a.norvik.Gramatica().conflicto(138, a.norvik.Gramatica().GetCodigoToken(u"sino") + 1), 0);
    a.norvik.OlvidaLenguaje();
    EXPECT_EQ(a.lexico() + a.reglas() + aUtf8(a.tabla() + a.norvik.Gramatica().textoInforme()), vacio);
    EXPECT_EQ(a.norvik.Gramatica().textoProblemas(), u"La gramática carece de problema alguno.");
    EXPECT_FALSE(a.analiza(u"x"));
}

} // namespace
