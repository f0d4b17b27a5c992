// SPDX-License-Identifier: MIT

// How the control behaves on a text box, whatever the box is made of: one suite. Whoever includes it says on
// which boxes.
#pragma once

#include "apoyo/carpetaTemporal.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/historial.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"
#include "platform/cajas.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace norvik {

struct ControlTest : testing::TestWithParam<Fabrica> {
    ControlTest() {
        norvik.SetPalabraReservada(u"begin");
        norvik.SetER(u"[0-9]+", u"num", true, Norvik_Numero);
        norvik.SetER(u"/\\*([^*])*\\*/", u"com", true, Norvik_ComentarioBloque);
        norvik.SetER(u"'[^'\\r\\n]*'", u"cad", true, Norvik_Cadena);
        norvik.Colorear(true);
        norvik.HideSelection(false);
        norvik.eventos.change = [this] { sucesos += "c "; };
        norvik.eventos.SelChange = [this] { sucesos += "s "; };
        norvik.eventos.CambioDeLinea = [this](std::int16_t& linea) {
            sucesos += "L" + std::to_string(linea) + " ";
        };
    }
    void SetUp() override { dameSucesos(); }
    std::string dameSucesos() { return std::exchange(sucesos, {}); }

    /// A text to start from, coloured, whose undo history starts with it, the caret at a place.
    void empieza(std::u16string_view texto, std::int32_t cursor = 0) {
        norvik.Text(texto);
        norvik.InicializaUndosYRedos();
        norvik.ColoreaTodo();
        caja.selecciona(cursor, 0);
        dameSucesos();
    }
    /// A key as boxes tell of it; `escrito` is what it writes.
    void pulsa(std::int16_t codigo, std::u16string_view escrito, std::int16_t shift = 0) {
        caja.eventos.teclaAbajo(codigo, shift);
        if (codigo != 0) caja.reemplazaSeleccion(escrito);
        caja.eventos.teclaArriba(codigo, shift);
    }
    void teclea(std::u16string_view texto) {
        for (const char16_t c : texto)
            caja.reemplazaSeleccion(c == u'\n' ? saltoDeLinea : std::u16string_view(&c, 1));
    }
    /// One letter a character by its colour, and the place of the selection.
    std::string colores() {
        const std::int32_t inicio = caja.inicioSeleccion();
        const std::int32_t longitud = caja.longitudSeleccion();
        const auto eventos = std::exchange(caja.eventos, {});
        std::string todos;
        for (std::int32_t i = 0; i < static_cast<std::int32_t>(caja.texto().size()); ++i) {
            caja.selecciona(i, 1);
            const std::int32_t c = caja.colorSeleccion();
            todos += c == 0 ? '.' : c == 0x800000 ? 'P' : c == 0x808000 ? 'N' : c == 0xFF ? 'E' : 'C';
        }
        caja.selecciona(inicio, longitud);
        caja.eventos = eventos;
        return todos;
    }
    bool enReposo() const {
        return !caja.ocultaSeleccion() && norvik.historial().grabaDeshacer() && caja.izquierda() < 1000;
    }
    /// Text with the selection in brackets, or the caret as a bar.
    std::u16string foto() const {
        std::u16string texto(caja.texto());
        const auto inicio = static_cast<std::size_t>(caja.inicioSeleccion());
        const auto longitud = static_cast<std::size_t>(caja.longitudSeleccion());
        if (longitud == 0) return texto.insert(inicio, u"|");
        return texto.insert(inicio + longitud, u"]").insert(inicio, u"[");
    }

    const std::unique_ptr<CajaTexto> propia = GetParam()();
    CajaTexto& caja = *propia;
    std::vector<Mensaje> mensajes;
    SistemaMemoria sistema{[this](const Mensaje& m) { mensajes.push_back(m); }};
    Norvik norvik{caja, sistema};
    std::string sucesos;
};

// --- Editing ---

TEST_P(ControlTest, LaLineaQueSeEscribeQuedaLlana) {
    empieza(u"begin 12\r\nbegin", 8);
    EXPECT_EQ(colores(), "PPPPP.NN..PPPPP");
    teclea(u"3");
    EXPECT_EQ(colores(), "...........PPPPP");
    EXPECT_EQ(dameSucesos(), "s c ");
    caja.selecciona(11, 0);
    EXPECT_EQ(colores(), "PPPPP.NNN..PPPPP");
    EXPECT_EQ(dameSucesos(), "L2 s ");
    teclea(u"4");
    EXPECT_EQ(colores(), "PPPPP.NNN........");
    caja.eventos.pierdeFoco();
    EXPECT_EQ(colores().substr(0, 11), "PPPPP.NNN..");
    EXPECT_TRUE(enReposo());
}

TEST_P(ControlTest, LineasYColumnas) {
    EXPECT_EQ(norvik.TotalLineas(), 0);
    norvik.Text(u"uno\r\n\r\ntres");
    EXPECT_EQ(norvik.TotalLineas(), 3);
    const std::tuple<std::int32_t, int, int> casos[] = {
        {0, 1, 1}, {3, 1, 4}, {5, 2, 1}, {7, 3, 1}, {11, 3, 5}};
    for (const auto& [cursor, linea, columna] : casos) {
        caja.selecciona(cursor, 0);
        EXPECT_EQ(norvik.LineaActual(), linea) << cursor;
        EXPECT_EQ(norvik.ColumnaActual(), columna) << cursor;
    }
    EXPECT_EQ(norvik.ContenidoLinea(1), u"uno");
    EXPECT_EQ(norvik.ContenidoLinea(2), u"");
    EXPECT_EQ(norvik.ContenidoLinea(3), u"tres");
    const std::int16_t malas[] = {-1, 0, 4, 32767};
    for (const auto mala : malas) EXPECT_THROW(norvik.ContenidoLinea(mala), ArgumentoNoValido) << mala;
    norvik.Text(u"");
    EXPECT_EQ(norvik.ContenidoLinea(1), u"");
}

TEST_P(ControlTest, TeclasHaciaElAnfitrion) {
    empieza(u"12", 2);
    norvik.eventos.KeyDown = [this](std::int16_t& codigo, std::int16_t& shift) {
        sucesos += "d" + std::to_string(codigo) + "," + std::to_string(shift) + " ";
        if (codigo == 65) codigo = 0;
    };
    norvik.eventos.KeyUp = [this](std::int16_t& codigo, std::int16_t&) {
        sucesos += "u" + std::to_string(codigo) + " ";
    };
    norvik.eventos.KeyPress = [](std::int16_t& caracter) { ++caracter; };
    pulsa('V', u"x", mascara::control); // a shortcut of the box
    EXPECT_EQ(dameSucesos(), "d0,2 u0 ");
    pulsa('V', u"x", 3);
    EXPECT_EQ(dameSucesos(), "d86,3 s c u86 ");
    pulsa('A', u"x"); // suppressed by the host
    EXPECT_EQ(dameSucesos(), "d65,0 u0 ");
    std::int16_t caracter = u'a';
    caja.eventos.pulsacion(caracter);
    EXPECT_EQ(caracter, u'b');
}

TEST_P(ControlTest, LoPegadoSeColoreaComoRango) {
    empieza(u"begin\r\n12", 5);
    pulsa(tecla::insertar, u"1 /* a\r\nb */\r\n2", mascara::mayusculas);
    EXPECT_EQ(norvik.Text(), u"begin1 /* a\r\nb */\r\n2\r\n12");
    // The caret changed line while the text came in: the range from where it had been is coloured, and the
    // line where it ends is plain until it is left.
    EXPECT_EQ(colores().substr(0, 21), "PPPPPN.CCCCCCCCCC....");
    EXPECT_EQ(dameSucesos(), "L3 s c ");
}

TEST_P(ControlTest, ElMarcadoDeErrorSeVaAlCambiar) {
    empieza(u"begin x\r\n12 b", 13);
    norvik.MarcaErrorLinea(1);
    EXPECT_EQ(colores(), "EEEEEEE..NN..");
    EXPECT_EQ(norvik.LineaActual(), 2);
    teclea(u"x");
    EXPECT_EQ(colores(), "PPPPP.........");
    EXPECT_TRUE(enReposo());
    caja.selecciona(0, 0); // the line typed in waited to be coloured all the same
    EXPECT_EQ(colores(), "PPPPP....NN...");
}

TEST_P(ControlTest, ElMarcadoDeErrorQuedaAlDejarSuLinea) {
    empieza(u"begin x\r\n12 b", 13);
    teclea(u"x");
    norvik.MarcaErrorLinea(2);
    caja.selecciona(0, 0);
    EXPECT_EQ(colores(), "PPPPP....EEEEE");
}

TEST_P(ControlTest, LoQueTocaDosLineasSeColoreaAlDejarlo) {
    const std::tuple<std::u16string_view, std::int32_t, std::int32_t, std::u16string_view, std::string>
        casos[] = {
            {u"begin 12 begin 34", 9, 0, u"\r\n", "PPPPP.NN...PPPPP.NN"}, // Return inside a line
            {u"'12begin begin'", 8, 0, u"\r\n", ".NNPPPPP...PPPPP."},     // which makes something else of it
            {u"begin\r\n12 begin", 5, 2, u"", "PPPPPNN.PPPPP"},           // Backspace or Delete
            {u"begin 1\r\nx\r\n2 12", 6, 6, u"", "PPPPP.N.NN"},
            {u"begin 12", 6, 0, u"1\r\nbegin 2\r\n3", "PPPPP.N..PPPPP.N..NNN"}};
    for (const auto& [texto, inicio, longitud, nuevo, vistos] : casos) {
        for (const bool tecleadaAntes : {false, true}) {
            empieza(std::u16string(texto) + u"\r\nfin", inicio);
            caja.selecciona(inicio, 0);
            if (tecleadaAntes) {
                teclea(u"x");
                caja.selecciona(inicio, 1);
                caja.reemplazaSeleccion(u"");
            }
            caja.selecciona(inicio, longitud);
            if (nuevo.size() > 2) caja.eventos.vaAPegar();
            caja.reemplazaSeleccion(nuevo);
            const std::int32_t linea = caja.lineaDeCaracter(caja.inicioSeleccion());
            const auto comienzo = static_cast<std::size_t>(caja.inicioDeLinea(linea));
            const auto final = static_cast<std::size_t>(caja.inicioDeLinea(linea + 1));
            EXPECT_EQ(colores().substr(comienzo, final - comienzo).find_first_not_of('.'), std::string::npos);
            caja.selecciona(static_cast<std::int32_t>(caja.texto().size()), 0);
            EXPECT_EQ(colores(), vistos + ".....") << tecleadaAntes;
        }
    }
}

/// What keys do to a box, and what a person sees after leaving what was edited.
TEST_P(ControlTest, TeclasAlAzarYLosColoresSonLosDeColoreaTodo) {
    std::mt19937 azar(3);
    const std::u16string_view piezas[] = {
        u"b", u"1", u" ", u"'", u"begin", u"12 b", u"a\r\nbegin\r\n1", u"begin\r\n"};
    const auto texto = [&] { return caja.texto(); };
    const auto hasta = [&](std::int32_t p) {
        return std::clamp(p, 0, static_cast<std::int32_t>(texto().size()));
    };
    const auto salta = [&](std::int32_t p) { // never into the middle of a break
        return texto().substr(0, static_cast<std::size_t>(hasta(p))).ends_with(u'\r') ? hasta(p) + 1
                                                                                      : hasta(p);
    };
    empieza(u"begin 12\r\n'12 begin 1 begin' 12\r\nbegin");
    for (int paso = 0; paso < 6000; ++paso) {
        const std::int32_t cursor = caja.inicioSeleccion();
        const auto dado = azar() % 12;
        const bool hay = caja.longitudSeleccion() > 0;
        if (dado < 3) {
            teclea(piezas[azar() % 5]);
        } else if (dado == 3) {
            pulsa(tecla::retorno, saltoDeLinea);
        } else if (dado == 4) {
            norvik.tabuladorEnfocado();
        } else if (dado == 5) {
            pulsa(tecla::insertar, piezas[azar() % std::size(piezas)], mascara::mayusculas);
        } else if (dado < 8) { // Backspace and Delete
            const bool atras = dado == 6;
            const std::int32_t cuantos =
                texto().substr(static_cast<std::size_t>(atras ? std::max(cursor - 2, 0) : cursor))
                        .starts_with(saltoDeLinea)
                    ? 2
                    : 1;
            const std::int32_t desde = atras ? std::max(cursor - cuantos, 0) : cursor;
            if (hay) {
                caja.reemplazaSeleccion(u"");
            } else if (cursor - desde == (atras ? cuantos : 0)) { // in one edit
                const auto receptores = std::exchange(caja.eventos, {});
                caja.selecciona(desde, cuantos);
                caja.eventos = receptores;
                caja.reemplazaSeleccion(u"");
            }
        } else {
            const std::int32_t destino = salta(cursor + static_cast<std::int32_t>(azar() % 15) - 7);
            caja.selecciona(destino, azar() % 3 == 0
                                         ? salta(destino + static_cast<std::int32_t>(azar() % 20)) - destino
                                         : 0);
        }
        if (texto().size() > 300) empieza(u"begin 12\r\n'12 begin 1 begin' 12\r\nbegin");
        if (azar() % 6 == 0) {
            norvik.ColoreaTodo();
            norvik.MarcaErrorLinea(static_cast<std::int16_t>(1 + azar() % 6));
            teclea(piezas[azar() % 5]);
            ASSERT_EQ(colores().find('E'), std::string::npos) << paso;
        }
        if (azar() % 6 != 0) continue;
        caja.selecciona(norvik.LineaActual() == 1 ? hasta(1 << 20) : 0, 0);
        caja.eventos.pierdeFoco();
        const std::string quedan = colores();
        norvik.ColoreaTodo();
        ASSERT_EQ(quedan, colores()) << paso << aUtf8(texto());
    }
}

TEST_P(ControlTest, LaMarcaDeErrorSigueASuLinea) {
    const std::tuple<std::int16_t, std::int32_t, std::int32_t, std::u16string_view> casos[] = {
        {3, 5, 0, u"\r\n"}, // Return above
        {3, 0, 0, u"x\r\ny\r\n"},
        {3, 11, 0, u"\r\n"},        // Return where it begins
        {3, 14, 0, u"\r\n"},        // and inside it
        {3, 9, 2, u""},             // joined to the line above
        {3, 5, 2, u""},             // lines above are joined
        {3, 6, 6, u""},             // its beginning goes with them
        {3, 18, 0, u"a\r\nb\r\nc"}, // many lines inside it
        {1, 0, 0, u"x"},
        {1, 0, 0, u"\r\n"},
        {2, 0, 18, u"z"}};
    for (const auto& [linea, inicio, longitud, nuevo] : casos) {
        empieza(u"begin\r\n12\r\nbegin b");
        caja.selecciona(inicio, longitud);
        norvik.MarcaErrorLinea(linea);
        const auto receptores = std::exchange(caja.eventos, {});
        caja.selecciona(inicio, longitud);
        caja.eventos = receptores;
        caja.reemplazaSeleccion(nuevo);
        EXPECT_EQ(colores().find('E'), std::string::npos) << inicio << ' ' << colores();
        teclea(u"x");
        EXPECT_EQ(colores().find('E'), std::string::npos) << inicio << ' ' << colores();
    }
}

/// A host that parses at each line marks the one that was left.
TEST_P(ControlTest, LoQueSeMarcaAlCambiarDeLineaQueda) {
    empieza(u"begin 12", 8);
    norvik.eventos.CambioDeLinea = [this](std::int16_t& linea) {
        if (linea == 2) norvik.MarcaErrorLinea(1);
    };
    for (const std::string vistos : {"EEEEEEEENN", "PPPPP.NN..."}) {
        teclea(vistos[0] == 'E' ? u"\n" : u"x");
        EXPECT_EQ(colores(), vistos);
    }
}

TEST_P(ControlTest, SangriaDeLaLineaNueva) {
    const std::tuple<std::u16string_view, std::int32_t, bool, std::u16string_view> casos[] = {
        {u"    a", 5, true, u"    a\r\n    |"},
        {u"    a", 4, true, u"    \r\n|a"},
        {u"    a", 5, false, u"    a\r\n|"},
        {u"\t  a", 4, true, u"\t  a\r\n|"},
        {u"  \ta\r\nb", 4, true, u"  \ta\r\n  |\r\nb"},
        {u"   ", 3, true, u"   \r\n   |"},
        {u"", 0, true, u"\r\n|"}};
    for (const auto& [texto, cursor, autoTAB, queda] : casos) {
        norvik.AutoTAB(autoTAB);
        empieza(texto, cursor);
        pulsa(tecla::retorno, saltoDeLinea);
        EXPECT_EQ(foto(), queda);
    }
    empieza(u"  a\r\n", 0); // on the first line nothing is above
    pulsa(tecla::retorno, u"");
    EXPECT_EQ(foto(), u"|  a\r\n");
}

TEST_P(ControlTest, ElTabuladorEscribeEspacios) {
    const std::int16_t anchos[] = {4, 0, 9};
    for (const auto cuantos : anchos) {
        empieza(u"abcd");
        caja.selecciona(1, 2);
        norvik.EspaciosXTAB(cuantos);
        norvik.tabuladorEnfocado();
        EXPECT_EQ(norvik.Text(), u"a" + std::u16string(static_cast<std::size_t>(cuantos), u' ') + u"d");
    }
    norvik.EspaciosXTAB(-1);
    EXPECT_THROW(norvik.tabuladorEnfocado(), ArgumentoNoValido);
}

TEST_P(ControlTest, OcupadoNadaLlegaAlAnfitrion) {
    norvik.AutoCorreccion(true);
    empieza(u"BEGIN 12\r\nBegin");
    caja.selecciona(3, 1);
    dameSucesos();
    norvik.ColoreaTodo();
    norvik.MarcaErrorLinea(2);
    EXPECT_EQ(dameSucesos(), "");
    EXPECT_EQ(foto(), u"beg|in 12\r\nbegin");
}

// --- Undo ---

TEST_P(ControlTest, DeshacerYRehacer) {
    const std::tuple<std::u16string_view, std::int32_t, std::int32_t, std::u16string_view,
                     std::u16string_view, std::u16string_view>
        casos[] = {
            {u"una palabra", 4, 7, u"", u"una [palabra]", u"una |"},
            {u"abc", 1, 1, u"", u"ab|c", u"a|c"},
            {u"a\r\nb", 1, 2, u"", u"a\r\n|b", u"a|b"},
            {u"ab", 1, 0, u"x", u"a|b", u"ax|b"},
            {u"ab", 1, 0, u"xyz", u"a|b", u"a[xyz]b"},
            {u"ab", 1, 0, u"\r\n", u"a|b", u"a\r\n|b"},
            {u"abcdef", 1, 3, u"X", u"aX[cd]ef", u"aX|ef"}, // known: lengths alone are compared
            {u"abc", 0, 2, u"xy", u"xy|c", u"xy|c"},
            {u"abc", 0, 1, u"xyz", u"x|bc", u"x[yz]bc"},
        };
    for (const auto& [texto, inicio, longitud, nuevo, deshecho, rehecho] : casos) {
        norvik.BorraTodo();
        norvik.Text(texto);
        caja.selecciona(inicio, longitud);
        caja.reemplazaSeleccion(nuevo);
        dameSucesos();
        norvik.Undo();
        EXPECT_EQ(foto(), deshecho);
        norvik.Undo(); // the base stays
        EXPECT_EQ(foto(), deshecho);
        norvik.Redo();
        EXPECT_EQ(foto(), rehecho);
        norvik.Redo();
        EXPECT_EQ(foto(), rehecho);
        EXPECT_EQ(dameSucesos().find_first_of("cs"), std::string::npos);
        EXPECT_TRUE(enReposo());
    }
}

// --- Receivers that misbehave, limits, files ---

TEST_P(ControlTest, ReceptoresQueLanzan) {
    empieza(u"uno\r\ndos");
    norvik.SelText(u"x");
    norvik.eventos.change = [] { throw std::runtime_error("change"); };
    EXPECT_THROW(teclea(u"y"), std::runtime_error);
    norvik.eventos.change = {};
    norvik.eventos.CambioDeLinea = [](std::int16_t&) { throw std::runtime_error("línea"); };
    EXPECT_THROW(caja.selecciona(9, 0), std::runtime_error);
    EXPECT_EQ(foto(), u"xyuno\r\ndo|s");
    EXPECT_THROW(norvik.Undo(), std::runtime_error);
    EXPECT_EQ(foto(), u"x|uno\r\ndos"); // done, although it was told to nobody
    EXPECT_TRUE(enReposo());
    EXPECT_NO_THROW(norvik.Redo());
    EXPECT_EQ(foto(), u"xy|uno\r\ndos");
    norvik.eventos.CambioDeLinea = {};
    teclea(u"z");
    norvik.Undo();
    EXPECT_EQ(foto(), u"xy|uno\r\ndos");
}

TEST_P(ControlTest, ReceptoresQueLlamanAlControl) {
    empieza(u"a\r\nb", 0);
    norvik.eventos.change = [this] {
        norvik.eventos.change = {};
        norvik.SelText(u"!");
    };
    teclea(u"x");
    EXPECT_EQ(foto(), u"x!|a\r\nb");
    EXPECT_EQ(norvik.historial().undos().cuantas(), 2U);
    norvik.eventos.CambioDeLinea = [this](std::int16_t&) {
        norvik.eventos.CambioDeLinea = {};
        norvik.BorraTodo();
    };
    caja.selecciona(5, 0);
    EXPECT_EQ(foto(), u"|");
    teclea(u"1");
    teclea(u"2");
    norvik.eventos.CambioDeLinea = [this](std::int16_t&) { norvik.Undo(); };
    teclea(u"\n");
    norvik.Undo();
    norvik.Redo();
    EXPECT_TRUE(enReposo());
    norvik.eventos.CambioDeLinea = {};
    norvik.BorraTodo();
    teclea(u"ab");
    norvik.Undo();
    EXPECT_EQ(foto(), u"a|");
}

TEST_P(ControlTest, ElTextoMasLargoQueSeColorea) {
    const apoyo::CarpetaTemporal carpeta;
    for (const std::size_t longitud : {32766U, 32767U}) {
        const bool cabe = longitud == 32766;
        std::string largo(longitud - 6, 'x');
        largo.replace(100, 1, "\n");
        const auto fichero = carpeta.pon("largo.txt", largo + "\nfin"); // a break counts two characters
        if (cabe) {
            EXPECT_TRUE(norvik.CargarFichero(fichero));
        } else {
            EXPECT_THROW(norvik.CargarFichero(fichero), Desbordamiento);
        }
        ASSERT_EQ(norvik.Text().size(), longitud);
        EXPECT_EQ(norvik.historial().undos().cuantas(), 1U);
        caja.selecciona(static_cast<std::int32_t>(longitud), 0);
        teclea(u"1");
        teclea(u"2");
        EXPECT_THROW(norvik.ColoreaTodo(), Desbordamiento);
        EXPECT_THROW(caja.selecciona(0, 0), Desbordamiento);
        EXPECT_EQ(norvik.LineaActual(), 1);
        EXPECT_NO_THROW(caja.selecciona(1, 0));
        EXPECT_TRUE(enReposo());
        norvik.Undo();
        norvik.Undo();
        EXPECT_EQ(norvik.Text().size(), longitud);
        EXPECT_TRUE(enReposo());
    }
}

TEST_P(ControlTest, CargarEsElPrimerEstado) {
    const apoyo::CarpetaTemporal carpeta;
    empieza(u"antes");
    teclea(u"xy");
    dameSucesos();
    std::u16string oido;
    norvik.eventos.textoCambiado = [&] { oido += norvik.Text() + u'|'; };
    EXPECT_TRUE(norvik.CargarFichero(carpeta.pon("f.txt", "begin\n12\n")));
    EXPECT_EQ(dameSucesos(), "s c c ");
    EXPECT_EQ(std::exchange(oido, {}), u"begin\r\n12|"); // once, and never the text between
    EXPECT_EQ(colores(), "PPPPP..NN");
    norvik.Undo();
    EXPECT_EQ(foto(), u"|begin\r\n12");
    EXPECT_FALSE(norvik.TextoModificado());
    for (const auto& malo : {carpeta / "no.txt", carpeta.ruta()}) {
        teclea(u"x");
        oido.clear();
        EXPECT_THROW(norvik.CargarFichero(malo), ErrorDeFichero);
        EXPECT_EQ(foto(), u"|"); // emptied first
        EXPECT_EQ(oido, u"|");
    }
    EXPECT_TRUE(norvik.CargarFichero(carpeta.pon("f.txt", "")));
    EXPECT_EQ(norvik.historial().undos().cuantas(), 1U);
    EXPECT_TRUE(enReposo());
}

} // namespace norvik
