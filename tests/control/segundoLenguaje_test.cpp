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
                                            {"cabecera", [](Norvik& control, const Lenguaje& l) {
                                                 control.OlvidaLenguaje();
                                                 l.cabecera(control);
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
