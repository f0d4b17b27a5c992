// SPDX-License-Identifier: MIT

// What a text box must do, whatever it is made of: one suite. Whoever includes it says on which boxes.
#pragma once

#include "platform/cajas.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace norvik {

using namespace std::string_literals;

struct CajaTextoTest : testing::TestWithParam<Fabrica> {
    CajaTextoTest() {
        caja.eventos.cambio = [this](const CambioDeTexto& c) { sucesos += c.otraSeleccion ? u"sc" : u"c"; };
        caja.eventos.cambioDeSeleccion = [this] { sucesos += u's'; };
    }
    /// The events since the last question.
    std::u16string dameSucesos() { return std::exchange(sucesos, {}); }
    std::u16string texto() const { return std::u16string(caja.texto()); }
    std::int32_t colorEn(std::int32_t posicion) {
        caja.selecciona(posicion, 1);
        return caja.colorSeleccion();
    }
    std::string colores() {
        std::string todos;
        for (std::size_t i = 0; i < caja.texto().size(); ++i) {
            todos += static_cast<char>('0' + colorEn(static_cast<std::int32_t>(i)));
        }
        return todos;
    }

    /// The fonts of the text, each by the size in points.
    std::string tamanos() {
        std::string todos;
        for (std::size_t i = 0; i < caja.texto().size(); ++i) {
            caja.selecciona(static_cast<std::int32_t>(i), 1);
            todos += std::to_string(caja.tamanoFuenteSeleccion() / 10000) + ' ';
        }
        return todos;
    }

    const std::unique_ptr<CajaTexto> propia = GetParam()();
    CajaTexto& caja = *propia;
    std::u16string sucesos;
};

TEST_P(CajaTextoTest, LaSeleccionQuedaDentroDelTexto) {
    caja.ponTexto(u"0123456789");
    const std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int32_t> casos[] = {
        {3, 4, 3, 4}, {8, 5, 8, 2}, {20, 5, 10, 0}, {-3, 2, 0, 2}, {4, -1, 4, 0}, {0, 10, 0, 10}};
    for (const auto& [inicio, longitud, quedaInicio, quedaLongitud] : casos) {
        caja.selecciona(inicio, longitud);
        EXPECT_EQ(caja.inicioSeleccion(), quedaInicio) << inicio << ',' << longitud;
        EXPECT_EQ(caja.longitudSeleccion(), quedaLongitud) << inicio << ',' << longitud;
    }
}

TEST_P(CajaTextoTest, LosCambiosSeAvisanComoLosDelUsuario) {
    caja.ponTexto(u"abc");
    EXPECT_EQ(dameSucesos(), u"c"); // the caret stood there already
    caja.ponTexto(u"abc");
    EXPECT_EQ(dameSucesos(), u"c"); // setting the same text is a change
    caja.selecciona(1, 1);
    caja.selecciona(1, 1);
    EXPECT_EQ(dameSucesos(), u"s");
    caja.ponColorSeleccion(5);
    EXPECT_EQ(dameSucesos(), u"");
    EXPECT_FALSE(caja.modificado());
    caja.reemplazaSeleccion(u"x");
    EXPECT_EQ(dameSucesos(), u"sc");
    EXPECT_TRUE(caja.modificado());
    caja.ponModificado(false);
    caja.reemplazaSeleccion(u"");
    EXPECT_EQ(dameSucesos(), u""); // nothing by nothing
    EXPECT_FALSE(caja.modificado());
    caja.reemplazaSeleccion(u"y");
    dameSucesos();
    caja.ponTexto(u"");
    EXPECT_EQ(dameSucesos(), u"sc");
    EXPECT_FALSE(caja.modificado());
}

TEST_P(CajaTextoTest, ElAvisoVeElTextoNuevo) {
    std::vector<std::int32_t> vistos;
    caja.eventos.cambio = [&](const CambioDeTexto&) {
        vistos.push_back(caja.numeroDeLineas());
        vistos.push_back(caja.inicioSeleccion());
    };
    caja.ponTexto(u"a\r\nb");
    caja.selecciona(4, 0);
    caja.reemplazaSeleccion(u"\r\n");
    EXPECT_EQ(vistos, (std::vector<std::int32_t>{2, 0, 3, 6}));
}

TEST_P(CajaTextoTest, CadaCaracterTieneSuColor) {
    caja.ponTexto(u"0123456789");
    caja.selecciona(2, 3);
    caja.ponColorSeleccion(1);
    caja.selecciona(4, 4);
    caja.ponColorSeleccion(2);
    EXPECT_EQ(colores(), "0011222200");
    caja.selecciona(3, 2); // replaced text has the colour of the first character replaced
    caja.reemplazaSeleccion(u"abc");
    EXPECT_EQ(colores(), "00111122200");
    caja.selecciona(6, 0); // typed text has the one of the character before …
    caja.reemplazaSeleccion(u"x");
    EXPECT_EQ(colores(), "001111122200");
    caja.selecciona(12, 0); // … unless another one was set there
    caja.ponColorSeleccion(7);
    EXPECT_EQ(caja.colorSeleccion(), 7);
    caja.reemplazaSeleccion(u"y");
    caja.reemplazaSeleccion(u"z");
    EXPECT_EQ(colores(), "00111112220077");
    caja.selecciona(0, 0);
    caja.ponColorSeleccion(9);
    caja.selecciona(1, 0); // moving forgets it
    EXPECT_EQ(caja.colorSeleccion(), 0);
    caja.ponTexto(u"nuevo");
    EXPECT_EQ(colores(), "00000");
}

TEST_P(CajaTextoTest, LosSaltosQueEntranSonDobles) {
    const std::pair<std::u16string, std::u16string> casos[] = {
        {u"a\nb\rc\r\nd", u"a\r\nb\r\nc\r\nd"}, {u"\n\r", u"\r\n\r\n"}, {u"\r\r\n\n", u"\r\n\r\n\r\n"}};
    for (const auto& [entra, queda] : casos) {
        caja.ponTexto(entra);
        EXPECT_EQ(texto(), queda);
        caja.ponTexto(u"xy");
        caja.selecciona(1, 0);
        caja.reemplazaSeleccion(entra);
        EXPECT_EQ(texto(), u"x" + queda + u"y");
    }
}

TEST_P(CajaTextoTest, MediosSaltos) {
    caja.ponTexto(u"a\r\nb");
    caja.selecciona(2, 1);
    EXPECT_EQ(caja.textoSeleccionado(), u"\n");
    caja.reemplazaSeleccion(u"");
    EXPECT_EQ(texto(), u"a\rb");
    EXPECT_EQ(caja.inicioSeleccion(), 2);
    EXPECT_EQ(caja.numeroDeLineas(), 2);
    caja.reemplazaSeleccion(u"x\n");
    EXPECT_EQ(texto(), u"a\rx\r\nb");
    caja.selecciona(2, 2); // the halves on both sides meet
    caja.reemplazaSeleccion(u"");
    EXPECT_EQ(texto(), u"a\r\nb");
    EXPECT_EQ(caja.numeroDeLineas(), 2);
    caja.reemplazaSeleccion(u"y"); // and part again
    EXPECT_EQ(texto(), u"a\ry\nb");
    EXPECT_EQ(caja.numeroDeLineas(), 3);
    caja.selecciona(2, 1);
    caja.reemplazaSeleccion(u"");
    EXPECT_EQ(caja.numeroDeLineas(), 2);
}

TEST_P(CajaTextoTest, NingunCaracterSePierde) {
    const std::u16string raros =
        u"\u00A0\u2003\t\u2028\u2029\uFDD0\uFDD1\uFFFC\uFEFF\u200B\u0001\u000B\f\u0085\U0001F600\u202Ea\u0301"s +
        u'\0' + u'\xD800' + u"fin";
    caja.ponTexto(raros);
    EXPECT_EQ(texto(), raros);
    EXPECT_EQ(caja.numeroDeLineas(), 1);
    caja.selecciona(3, 4);
    EXPECT_EQ(caja.textoSeleccionado(), raros.substr(3, 4));
    caja.reemplazaSeleccion(raros);
    EXPECT_EQ(texto(), raros.substr(0, 3) + raros + raros.substr(7));
    EXPECT_EQ(caja.numeroDeLineas(), 1);
}

TEST_P(CajaTextoTest, FuentePropiaYFuentesDeCaracteres) {
    EXPECT_EQ(caja.fuente().nombre, u"Courier New");
    EXPECT_EQ(caja.tamanoFuenteSeleccion(), 100000);
    caja.ponTexto(u"abcdef");
    caja.selecciona(1, 2);
    caja.ponTamanoFuenteSeleccion(140000);
    EXPECT_EQ(caja.nombreFuenteSeleccion(), u"Courier New");
    caja.selecciona(2, 2);
    caja.ponNombreFuenteSeleccion(u"Arial");
    EXPECT_EQ(caja.tamanoFuenteSeleccion(), 140000);
    EXPECT_EQ(tamanos(), "10 14 14 10 10 10 ");
    caja.ponFuente({.nombre = u"Times", .tamano = 120000, .cursiva = true});
    EXPECT_TRUE(caja.fuente().cursiva);
    EXPECT_EQ(tamanos(), "12 14 14 10 12 12 ");
    caja.selecciona(0, 0);
    EXPECT_EQ(caja.nombreFuenteSeleccion(), u"Times");
    caja.selecciona(3, 0);
    EXPECT_EQ(caja.nombreFuenteSeleccion(), u"Arial");
    EXPECT_EQ(dameSucesos().find(u'c', 1), std::u16string::npos); // only the text's
    caja.ponTexto(u"nuevo");
    EXPECT_EQ(caja.tamanoFuenteSeleccion(), 120000);
}

TEST_P(CajaTextoTest, Busca) {
    caja.ponTexto(u"cabo ab Ñu\r\nAB ñu_1 ab");
    const std::tuple<std::u16string, std::int32_t, std::int32_t, std::int32_t, std::int32_t> casos[] = {
        {u"ab", 0, 99, 0, 1},    {u"ab", 2, 99, 0, 5},   {u"ab", 6, 99, 0, 12}, {u"ab", 6, 99, 4, 20},
        {u"ab", 0, 99, 2, 5},    {u"ab", 0, 99, 6, 5},   {u"AB", 0, 99, 4, 12}, {u"ñU", 0, 99, 0, 8},
        {u"ñu", 10, 99, 2, -1},  {u"ab", 0, 2, 0, -1},   {u"ab", 0, 3, 0, 1},   {u"", 0, 99, 0, -1},
        {u"\r\n", 0, 99, 0, 10}, {u"ab", 50, 99, 0, -1}, {u"ab", 9, 3, 0, -1},  {u"ab", -7, 99, 8, 1}};
    for (const auto& [cadena, desde, hasta, opciones, resultado] : casos) {
        caja.selecciona(3, 1);
        EXPECT_EQ(caja.busca(cadena, desde, hasta, opciones), resultado) << desde << ' ' << opciones;
        const bool resalta = resultado >= 0 && opciones < 8;
        EXPECT_EQ(caja.inicioSeleccion(), resalta ? resultado : 3);
        EXPECT_EQ(caja.longitudSeleccion(), resalta ? static_cast<std::int32_t>(cadena.size()) : 1);
    }
}

TEST_P(CajaTextoTest, EdicionesAlAzarComoUnModeloLlano) {
    std::mt19937 azar(7);
    std::u16string modelo;
    std::string coloresModelo;
    const std::u16string_view piezas[] = {u"", u"a", u"\r\n", u"bcd", u"\r\n\r\n", u"\u2028ñ"};
    for (int paso = 0; paso < 300; ++paso) {
        const auto inicio = azar() % (modelo.size() + 1);
        const auto longitud = azar() % (std::min<std::size_t>(modelo.size() - inicio, 5) + 1);
        caja.selecciona(static_cast<std::int32_t>(inicio), static_cast<std::int32_t>(longitud));
        if (azar() % 3 == 0 && longitud > 0) {
            const auto color = static_cast<std::int32_t>(azar() % 4);
            caja.ponColorSeleccion(color);
            coloresModelo.replace(inicio, longitud, longitud, static_cast<char>('0' + color));
            continue;
        }
        const auto pieza = piezas[azar() % std::size(piezas)];
        const char color = static_cast<char>('0' + caja.colorSeleccion());
        caja.reemplazaSeleccion(pieza);
        modelo.replace(inicio, longitud, pieza);
        coloresModelo.replace(inicio, longitud, pieza.size(), color);
        ASSERT_EQ(texto(), modelo) << paso;
        ASSERT_EQ(caja.inicioSeleccion(), static_cast<std::int32_t>(inicio + pieza.size()));
        ASSERT_EQ(caja.longitudSeleccion(), 0);
    }
    EXPECT_EQ(colores(), coloresModelo);
}

} // namespace norvik
