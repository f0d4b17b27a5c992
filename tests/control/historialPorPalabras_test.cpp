// SPDX-License-Identifier: MIT

// Undo by words, on a control whose user types, rubs out, selects and pastes.
#include "norvik/control/estadoBusqueda.hpp"
#include "norvik/control/historialPorPalabras.hpp"

#include "apoyo/anfitrion.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using namespace norvik;

namespace {

struct PorPalabras : testing::Test {
    PorPalabras() { norvik.ponAyudas({.deshacePorPalabras = true}); }

    /// Each character is a key: < rubs out, > deletes, { and } move the caret, ! selects the character before
    /// it, ~ pastes "p q"; the others write themselves.
    void pulsa(std::u16string_view teclas) {
        for (const char16_t c : teclas) pulsa(c);
    }
    void pulsa(char16_t c) {
        const std::int32_t cursor = caja.inicioSeleccion();
        const auto delante = caja.texto().substr(0, static_cast<std::size_t>(cursor));
        const auto detras = caja.texto().substr(static_cast<std::size_t>(cursor));
        switch (c) {
        case u'<':
            return quita(cursor - (delante.ends_with(u"\r\n") ? 2 : 1), cursor);
        case u'>':
            return quita(cursor, cursor + (detras.starts_with(u"\r\n") ? 2 : 1));
        case u'{':
            return caja.selecciona(cursor - 1, 0);
        case u'}':
            return caja.selecciona(cursor + 1, 0);
        case u'!':
            return caja.selecciona(cursor - 1, caja.longitudSeleccion() + 1);
        case u'~':
            caja.eventos.empiezaPaso();
            caja.reemplazaSeleccion(u"p");
            return caja.eventos.acabaPaso();
        default:
            return caja.reemplazaSeleccion(c == u'\n' ? u"\r\n" : std::u16string_view(&c, 1));
        }
    }
    /// The selection, or the characters [inicio, fin).
    void quita(std::int32_t inicio, std::int32_t fin) {
        if (caja.longitudSeleccion() > 0) return caja.reemplazaSeleccion({});
        if (inicio < 0 || fin > static_cast<std::int32_t>(caja.texto().size())) return;
        caja.sustituye(inicio, fin - inicio, {}, {inicio, 0});
    }
    /// The text, with the selection between brackets or the caret as a bar; a line break is /.
    std::string visto() const {
        std::string texto;
        const std::int32_t inicio = caja.inicioSeleccion();
        const std::int32_t fin = inicio + caja.longitudSeleccion();
        for (std::int32_t i = 0;; ++i) {
            if (i == inicio) texto += inicio == fin ? '|' : '[';
            if (i == fin && inicio != fin) texto += ']';
            if (i == static_cast<std::int32_t>(caja.texto().size())) return texto;
            const char16_t c = caja.texto()[static_cast<std::size_t>(i)];
            if (c == u'\r') continue;
            texto += c == u'\n' ? '/' : c == u' ' ? '_' : c == u'\u00F1' ? 'n' : static_cast<char>(c);
        }
    }
    /// What is seen going back as far as it goes, and forth again.
    std::string ida() {
        std::string pasos;
        for (; norvik.puedeDeshacer(); pasos += visto() + ' ') norvik.Undo();
        return pasos;
    }
    std::string vuelta() {
        std::string pasos;
        for (; norvik.puedeRehacer(); pasos += visto() + ' ') norvik.Redo();
        return pasos;
    }

    apoyo::Anfitrion anfitrion;
    Norvik& norvik = anfitrion.norvik;
    CajaTexto& caja = anfitrion.caja;
};

} // namespace

TEST_F(PorPalabras, QueEsUnPaso) {
    struct Caso {
        std::u16string teclas;
        std::string ida;
        std::string vuelta;
    };
    const Caso casos[] = {
        {u"", "", ""},
        {u"uno  dos", "uno__| | ", "uno__| uno__dos| "},
        {u"a+=b", "a+=| a| | ", "a| a+=| a+=b| "},
        {u"\u00F1u_1", "| ", "nu_1| "},
        {u"a\n  b", "a/__| a| | ", "a| a/__| a/__b| "},
        {u"a\n\n", "a/| a| | ", "a| a/| a//| "},
        {u"uno dos<<<<<", "uno_| uno_dos| uno_| | ", "uno_| uno_dos| uno_| un| "},
        {u"ab\n<<", "ab| ab/| ab| | ", "ab| ab/| ab| a| "},
        {u"uno dos{{{{{>>>>", "un|dos un|o_dos uno_| | ", "uno_| uno_dos| un|dos un|s "},
        {u"uno{}x", "uno| | ", "uno| unox| "},                             // the caret was elsewhere
        {u"uno~~x", "unopp| unop| uno| | ", "uno| unop| unopp| unoppx| "}, // nor is a paste typed
        {u"abcd!!xy", "ab[cd] | ", "abcd| abxy| "},
        {u"abcd!!<e", "ab| ab[cd] | ", "abcd| ab| abe| "},
    };
    for (const Caso& caso : casos) {
        norvik.BorraTodo();
        pulsa(caso.teclas);
        EXPECT_EQ(ida(), caso.ida) << std::string(caso.teclas.begin(), caso.teclas.end());
        EXPECT_EQ(vuelta(), caso.vuelta) << std::string(caso.teclas.begin(), caso.teclas.end());
    }
}

/// Whatever was done, going back shows what was seen before, in that order, down to the first text; going
/// forth, the same up to the last one.
TEST_F(PorPalabras, IdaYVueltaAlAzar) {
    std::mt19937 azar(13);
    constexpr std::u16string_view teclas = u"ab  +\n<<>>{}!!~\r";
    for (int vez = 0; vez < 300; ++vez) {
        norvik.BorraTodo();
        norvik.Text(vez % 2 == 0 ? u"" : u"uno\r\ndos");
        std::vector<std::string> vistos{visto()};
        for (int i = 0; i < 60; ++i) {
            const char16_t tecla = teclas[azar() % teclas.size()];
            if (tecla == u'\r')
                azar() % 3 == 0 ? norvik.Redo() : norvik.Undo();
            else
                pulsa(tecla);
            vistos.push_back(visto());
        }
        while (norvik.puedeRehacer()) norvik.Redo();
        const std::u16string ultimo = norvik.Text();
        std::vector<std::string> atras;
        for (; norvik.puedeDeshacer(); atras.push_back(visto())) norvik.Undo();
        EXPECT_EQ(norvik.Text(), vez % 2 == 0 ? u"" : u"uno\r\ndos");
        for (const std::string& texto : atras) EXPECT_TRUE(std::ranges::count(vistos, texto) > 0) << texto;
        while (norvik.puedeRehacer()) norvik.Redo();
        EXPECT_EQ(norvik.Text(), ultimo);
    }
}

TEST_F(PorPalabras, LoQueNoSeTecleaEsUnPaso) {
    norvik.Text(u"a b a");
    EXPECT_FALSE(norvik.puedeDeshacer()); // a text that is put is where it begins
    DestinoBusqueda destino = norvik.destinoBusqueda();
    pulsa(u"x");
    destino.sustituye(0, 6, u"c d c");
    pulsa(u"y");
    caja.eventos.empiezaPaso();
    pulsa(u"1{2");
    caja.eventos.acabaPaso();
    EXPECT_EQ(visto(), "c_d_cy2|1");
    EXPECT_EQ(ida(), "c_d_cy| c_d_c| x|a_b_a |a_b_a ");
    norvik.Text(u"z");
    EXPECT_EQ(ida(), "|a_b_a ");
    pulsa(u"x");
    const std::string ruta = (norvik.BorraTodo(), ida());
    EXPECT_EQ(ruta, "");
}

/// Undo and redo tell nothing, and nothing that is done from inside makes them lose their way.
TEST_F(PorPalabras, DesdeDentroDeSusSucesos) {
    int avisos = 0;
    norvik.eventos.change = [&] { ++avisos; };
    norvik.eventos.SelChange = [&] { ++avisos; };
    pulsa(u"uno\ndos");
    avisos = 0;
    norvik.Undo();
    EXPECT_EQ(avisos, 0);
    const std::pair<std::string, std::function<void()>> acciones[] = {
        {"deshace", [this] { norvik.Undo(); }},
        {"escribe", [this] { caja.sustituye(0, 1, u"zzzz", {1, 0}); }},
        {"acorta", [this] { caja.ponTexto({}); }},
        {"olvida", [this] { norvik.InicializaUndosYRedos(); }},
        {"apaga", [this] { norvik.ponAyudas({}); }},
        {"lanza", [] { throw std::runtime_error("receptor"); }},
    };
    for (const auto& [nombre, accion] : acciones) {
        for (const bool vuelve : {false, true}) {
            norvik.eventos.CambioDeLinea = {};
            norvik.ponAyudas({.deshacePorPalabras = true});
            norvik.BorraTodo();
            pulsa(u"uno\ndos");
            while (vuelve && norvik.puedeDeshacer()) norvik.Undo();
            norvik.eventos.CambioDeLinea = [&accion = accion](std::int16_t&) { accion(); };
            for (int i = 0; i < 3; ++i) {
                try {
                    vuelve ? norvik.Redo() : norvik.Undo();
                } catch (const std::runtime_error&) { // the text is that of the step all the same
                    EXPECT_EQ(nombre, "lanza");
                }
            }
            norvik.eventos.CambioDeLinea = {};
            if (nombre == "lanza") {
                EXPECT_EQ(norvik.Text(), vuelve ? u"uno\r\ndos" : u"") << vuelve;
            }
            ida();
            vuelta();
            pulsa(u"a");
            EXPECT_EQ(norvik.puedeDeshacer(), nombre != "apaga") << nombre;
        }
    }
}

/// The history of always is as it was once the aid is off again.
TEST_F(PorPalabras, EncenderYApagar) {
    pulsa(u"uno dos");
    norvik.ponAyudas({});
    EXPECT_FALSE(norvik.puedeDeshacer());
    pulsa(u"abc");
    norvik.Undo();
    EXPECT_EQ(visto(), "uno_dosab|");
    EXPECT_TRUE(norvik.puedeRehacer());
    norvik.ponAyudas({.deshacePorPalabras = true});
    EXPECT_FALSE(norvik.puedeRehacer());
    pulsa(u"!x");
    norvik.Undo();
    EXPECT_EQ(visto(), "uno_dosa[b]");
}

TEST_F(PorPalabras, LoRepuestoEnVariasLineasSeColorea) {
    norvik.SetPalabraReservada(u"si");
    norvik.Colorear(true);
    norvik.Text(u"si\r\nsi\r\nno");
    norvik.ColoreaTodo();
    const auto antes = caja.colores();
    EXPECT_GT(antes.size(), 2U);
    caja.selecciona(0, 10);
    pulsa(u"<");
    norvik.Undo();
    EXPECT_EQ(caja.colores(), antes);
}

/// A correction may have another length; going back corrects nothing.
TEST_F(PorPalabras, LoQueElControlCorrigeVaConSuPaso) {
    norvik.SetER(u"abx?", u"fija", true, Norvik_AutoExpReg);
    norvik.Colorear(true);
    norvik.AutoCorreccion(true);
    for (const bool alDia : {false, true}) {
        norvik.ponAyudas({.coloreaAlEscribir = alDia, .deshacePorPalabras = true});
        norvik.BorraTodo();
        pulsa(u"y\nab");
        caja.selecciona(0, 0);
        EXPECT_EQ(visto(), "|y/abx?");
        pulsa(u"w");
        for (int vez = 0; vez < 2; ++vez) {
            EXPECT_EQ(ida(), "|y/abx? y/| y| | ");
            EXPECT_EQ(vuelta(), "y| y/| y/abx?| w|y/abx? ");
        }
    }
}

TEST(HistorialPorPalabras, LoMasAntiguoSeOlvida) {
    CajaTexto caja;
    const Prestado<CajaTexto> prestada(caja);
    HistorialPorPalabras historial(prestada, 4000);
    bool anota = true;
    caja.eventos.cambio = [&](const CambioDeTexto& cambio) {
        if (anota) historial.anota(cambio);
    };
    caja.ponTexto(std::u16string(3000, u'a'));
    for (int i = 0; i < 30; ++i) caja.sustituye(0, 100, u"", {0, 0});
    EXPECT_GT(historial.deshacibles(), 5U);
    EXPECT_LT(historial.deshacibles(), 20U); // 200 bytes of text in each, and what keeps it
    const std::size_t quedan = historial.deshacibles();
    PasosFirmes paso;
    anota = false;
    while (historial.deshacibles() > 0) historial.deshace(paso);
    EXPECT_EQ(caja.texto().size(), 100 * quedan);
    while (historial.rehacibles() > 0) historial.rehace(paso);
    EXPECT_EQ(caja.texto(), u"");
    anota = true;
    caja.reemplazaSeleccion(std::u16string(5000, u'b'));
    caja.sustituye(0, 5000, u"", {0, 0});
    EXPECT_EQ(historial.deshacibles(), 1U); // the last one stays, whatever it takes
    anota = false;
    historial.deshace(paso);
    EXPECT_EQ(caja.texto().size(), 5000U);
}
