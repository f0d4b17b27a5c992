// SPDX-License-Identifier: MIT

// What can follow at a place of a text, and the constructions of a tree that can be folded.
#include "norvik/base/texto.hpp"
#include "norvik/control/pliegues.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <gtest/gtest.h>

#include <array>
#include <stop_token>
#include <string>

using namespace norvik;

namespace {

Lenguaje lenguaje() {
    return *Lenguaje::compila(
                u"Token com = \"/\\*([^*])*\\*/\", TipoToken = TTComentarioBloque;"
                u"Token linea = \"--[^\\r\\n]*\", TipoToken = TTComentarioLinea;"
                u"Token cad = \"'[^']*'\", TipoToken = TTCadena (\"cadena\");"
                u"Token si = \"si\", TipoToken = TTPalabraReservada;"
                u"Token no = \"sino\", TipoToken = TTPalabraReservada;"
                u"Token ini = \"{\"; Token fin = \"}\"; Token igual = \"=\"; Token pc = \";\";"
                u"Token id = \"[a-z]+\" (\"identificador\");"
                u"P -> L; L -> L S | S;"
                u"S -> id igual V pc | si V S Sino | ini L fin; Sino -> no S | Ø; V -> id | cad;")
                .lenguaje;
}

/// The place is where the bar stands.
std::string propuestas(std::u16string texto) {
    const std::size_t lugar = texto.find(u'|');
    texto.erase(lugar, 1);
    const Continuaciones c = continuaciones(lenguaje(), texto, lugar);
    std::string todas = std::to_string(lugar - c.inicio) + ":";
    for (const Continuacion& p : c.propuestas) {
        constexpr std::array marcas = {"", "<", "*"};
        todas += " " + std::string(marcas[static_cast<std::size_t>(p.clase)]) + aUtf8(p.texto);
    }
    return todas;
}

} // namespace

TEST(Continuaciones, LoQueLaTablaPuedeDesplazar) {
    const struct {
        std::u16string texto;
        std::string esperado;
    } casos[] = {
        {u"|", "0: si { <identificador"},
        {u"x |", "0: ="},
        {u"x = |;", "0: <cadena <identificador *x"},
        {u"x = ab|;", "2: <cadena <identificador *x"}, // what is being written is not proposed
        {u"x = ab|; ab = x;", "2: <cadena <identificador *ab *x"},
        {u"si x y = z; |", "0: si sino { <identificador *x *y *z"},
        {u"{ x = y; |", "0: si { } <identificador *x *y"},
        {u"{ x = = y; |", "0: si { } <identificador *x *y"}, // behind an error
        {u"{ x # = y; |", "0: si { } <identificador *x *y"},
        {u"x y; |", "0: si { <identificador *x *y"}, // a sign was forgotten, there and far below
        {u"x y; { x = y; si x |", "0: si { <identificador *x *y"},
        {u"{ x = y; } } { x = |", "0: <cadena <identificador *x *y"},
        {u"x = 'a|b';", "1:"},
        {u"x = /* | */", "0:"},
        {u"x = -- y|", "1:"},
        {u"x = /* */|", "0: <cadena <identificador *x"},
    };
    for (const auto& caso : casos) EXPECT_EQ(propuestas(caso.texto), caso.esperado) << aUtf8(caso.texto);
}

TEST(Continuaciones, SinGramaticaNiTextoNiPaciencia) {
    const Lenguaje soloTokens = *Lenguaje::compila(u"Token id = \"[a-z]+\";").lenguaje;
    EXPECT_TRUE(continuaciones(soloTokens, u"a", 1).propuestas.empty());
    EXPECT_EQ(continuaciones(lenguaje(), u"x", 99).inicio, 0U);
    std::stop_source parada;
    parada.request_stop();
    EXPECT_TRUE(continuaciones(lenguaje(), std::u16string(200'000, u'x'), 0, {parada.get_token()})
                    .propuestas.empty());
}

TEST(Pliegues, LasConstruccionesDeVariasLineas) {
    const std::u16string texto =
        u"x = y;\r\nsi x {\r\n  y = z; {\r\n z = x; }\r\n}\r\nsino x = x;\r\n{ x\r\n= y; }";
    const Analisis analisis = analiza(lenguaje(), texto);
    ASSERT_TRUE(analisis);
    CajaTexto caja;
    caja.ponTexto(texto);
    Pliegues pliegues;
    pliegues.toma(construccionesDe(analisis.arbol));
    EXPECT_EQ(pliegues.en(caja), (std::vector<Pliegue>{{1, 5}, {2, 3}, {6, 7}}));

    caja.eventos.cambio = [&](const CambioDeTexto& c) { pliegues.alCambiar(c); };
    caja.selecciona(0, 0);
    caja.reemplazaSeleccion(u"\r\n\r\n");
    EXPECT_EQ(pliegues.en(caja), (std::vector<Pliegue>{{3, 7}, {4, 5}, {8, 9}}));
    caja.selecciona(caja.inicioDeLinea(4), caja.inicioDeLinea(6) - caja.inicioDeLinea(4));
    caja.reemplazaSeleccion({});
    EXPECT_EQ(pliegues.en(caja), (std::vector<Pliegue>{{3, 5}, {6, 7}}));
    caja.ponTexto({});
    EXPECT_TRUE(pliegues.en(caja).empty());
    EXPECT_TRUE(construccionesDe(ArbolAnalisis()).empty());
}
