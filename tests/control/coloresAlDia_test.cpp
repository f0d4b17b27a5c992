// SPDX-License-Identifier: MIT

// Colours that are up to date after every change.
#include "apoyo/anfitrion.hpp"
#include "apoyo/pasos.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/control/coloresAlDia.hpp"
#include "norvik/control/colorista.hpp"

#include <gtest/gtest.h>

#include <array>
#include <random>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

constexpr std::u16string_view conCadenas = u"Token com = \"/\\*([^*])*\\*/\", TipoToken = TTComentarioBloque;"
                                           u"Token cad = \"'[^'\\r\\n]*'\", TipoToken = TTCadena;"
                                           u"Token num = \"[0-9]+\", TipoToken = TTNumero;"
                                           u"Token ini = \"begin\", TipoToken = TTPalabraReservada;"
                                           u"Token mas = \"\\+\", TipoToken = TTOperador;"
                                           u"Token id = \"[a-z]+\";"
                                           u"S -> S mas T | T; T -> num | id | ini id | cad;";

struct EditorAlDia : Anfitrion {
    explicit EditorAlDia(std::u16string_view texto = {}, std::u16string_view especificacion = conCadenas) {
        caja.ponOcultaSeleccion(false);
        compila(especificacion);
        norvik.ColorCadena(0x123456);
        compila(especificacion); // with the colour
        norvik.Colorear(true);
        norvik.ponAyudas({.coloreaAlEscribir = true});
        norvik.Text(texto);
    }
};

/// The colours that the whole text has when it is coloured at once, without the aid.
std::vector<TramoDeColor> deUnaVez(std::u16string_view texto,
                                   std::u16string_view especificacion = conCadenas) {
    EditorAlDia e({}, especificacion);
    e.norvik.ponAyudas({});
    e.norvik.Text(texto);
    e.norvik.ColoreaTodo();
    return e.caja.colores();
}

void escribe(EditorAlDia& e, std::u16string_view texto) {
    e.caja.reemplazaSeleccion(texto);
}

} // namespace

TEST(ColoresAlDia, TrasCadaTecla) {
    EditorAlDia e;
    std::u16string escrito;
    for (const char16_t c : std::u16string_view(u"begin x + 12 'a b' /* y\r\n + */ + 'z\r\nbegin")) {
        escribe(e, {&c, 1});
        escrito += c;
        if (c == u'\r') continue; // half a line break is doubled
        ASSERT_EQ(e.caja.colores(), deUnaVez(e.norvik.Text())) << aUtf8(e.norvik.Text());
    }
    EXPECT_TRUE(e.enReposo());
}

TEST(ColoresAlDia, UnComentarioQueSeAbreOSeCierraCambiaLoQueSigue) {
    EditorAlDia e(u"1 + x\r\n2 + 3 */ 4");
    e.caja.selecciona(0, 0);
    escribe(e, u"/*");
    EXPECT_EQ(e.caja.colores(),
              (std::vector<TramoDeColor>{{0, 17, 0x008000}, {17, 1, 0}, {18, 1, 0x808000}}));
    e.norvik.Undo();
    EXPECT_EQ(e.caja.colores(), deUnaVez(u"1 + x\r\n2 + 3 */ 4"));
}

TEST(ColoresAlDia, LaMarcaDeUnErrorDuraHastaElCambio) {
    EditorAlDia e(u"begin 12\r\nx + 1");
    e.norvik.MarcaErrorLinea(1);
    const std::vector<TramoDeColor> marcada = e.caja.colores();
    EXPECT_EQ(marcada.front(), (TramoDeColor{0, 8, 0x0000FF}));
    e.norvik.ponAyudas({});
    e.norvik.ponAyudas({.coloreaAlEscribir = true});
    EXPECT_EQ(e.caja.colores(), marcada);
    e.caja.selecciona(15, 0);
    escribe(e, u" ");
    EXPECT_EQ(e.caja.colores(), deUnaVez(u"begin 12\r\nx + 1 "));
}

TEST(ColoresAlDia, SeEnciendenYSeApaganConElTextoPuesto) {
    EditorAlDia e(u"begin 12");
    e.norvik.ponAyudas({});
    e.caja.selecciona(8, 0);
    escribe(e, u"3");
    EXPECT_EQ(e.caja.colores(), (std::vector<TramoDeColor>{{0, 9, 0}}))
        << "the line that is typed on is plain";
    e.norvik.ponAyudas({.coloreaAlEscribir = true});
    EXPECT_EQ(e.caja.colores(), deUnaVez(u"begin 123"));
    e.norvik.Colorear(false);
    escribe(e, u"x");
    EXPECT_EQ(e.caja.colores(), (std::vector<TramoDeColor>{{0, 5, 0x800000}, {5, 1, 0}, {6, 4, 0x808000}}))
        << "nobody colours";
}

TEST(ColoresAlDia, LasPalabrasSeCorrigenAlDejarLaLinea) {
    EditorAlDia e(u"BEGIN x\r\ny");
    e.norvik.AutoCorreccion(true);
    e.caja.selecciona(7, 0);
    escribe(e, u"z");
    EXPECT_EQ(e.norvik.Text(), u"BEGIN xz\r\ny");
    e.caja.selecciona(10, 0);
    EXPECT_EQ(e.norvik.Text(), u"begin xz\r\ny");
    EXPECT_EQ(e.caja.colores(), deUnaVez(u"begin xz\r\ny"));
}

TEST(ColoresAlDia, OtroLenguaje) {
    EditorAlDia e(u"begin 12 fin");
    constexpr std::u16string_view otro = u"Token fin = \"fin\", TipoToken = TTPalabraReservada;"
                                         u"Token id = \"[a-z0-9]+\"; S -> id | fin;";
    e.norvik.OlvidaLenguaje();
    EXPECT_TRUE(e.compila(otro));
    escribe(e, u" ");
    EXPECT_EQ(e.caja.colores(), deUnaVez(u" begin 12 fin", otro));
    e.norvik.OlvidaLenguaje();
    escribe(e, u" ");
    EXPECT_EQ(e.caja.colores(), (std::vector<TramoDeColor>{{0, 14, 0}}));
}

/// Longer than what is coloured otherwise; and longer than what is coloured at once, where nobody has another
/// thread for it.
TEST(ColoresAlDia, TextosLargos) {
    for (const std::size_t largo : {std::size_t{40'000}, 2 * ColoresAlDia::maximoAlMomento}) {
        std::u16string texto;
        while (texto.size() < largo) texto += u"begin x + 12\r\n";
        EditorAlDia e(texto);
        e.caja.selecciona(a32(texto.size()), 0);
        EXPECT_NO_THROW(escribe(e, u"begin")); //
        EXPECT_EQ(e.caja.colores().back(), (TramoDeColor{a32(texto.size()), 5, 0x800000}));
        EXPECT_NO_THROW(e.norvik.ColoreaTodo());
        EXPECT_TRUE(e.enReposo());
    }
}

TEST(ColoresAlDia, UnPatronQueSeDesbocaDesisteUnaVez) {
    EditorAlDia e;
    e.norvik.OlvidaLenguaje();
    ASSERT_TRUE(e.compila(u"Token x = \"(?=(a*)*b)a\"; Token y = \"(a*)*\\1c\"; S -> x | y;"));
    e.caja.ponTexto(u"b");
    const std::u16string largo(3000, u'a');
    int fallos = 0;
    for (int vez = 0; vez < 3; ++vez) {
        try {
            escribe(e, largo);
        } catch (const BusquedaDesbocada&) {
            ++fallos;
        }
    }
    EXPECT_LE(fallos, 1);
    EXPECT_EQ(e.norvik.Text().size(), 9001U);
    EXPECT_TRUE(e.enReposo());
}

/// A long text waits for its container, which brings the colours of the text as it is.
TEST(ColoresAlDia, UnTextoLargoEsperaAQuienLoEnsena) {
    struct Paciente : Contenedor {
        bool coloreaDespues() override { return ++pedidos > 0; }
        int pedidos = 0;
    } contenedor;
    SistemaVigilado sistema;
    CajaTexto caja;
    Norvik norvik{caja, sistema, contenedor};
    ASSERT_TRUE(norvik.CargaGramatica(conCadenas) && norvik.GeneraCompilador());
    norvik.Colorear(true);
    norvik.ponAyudas({.coloreaAlEscribir = true});
    norvik.Text(u"begin " + std::u16string(ColoresAlDia::maximoAlMomento, u'1'));
    EXPECT_GE(contenedor.pedidos, 1);
    EXPECT_EQ(caja.colores().size(), 1U);
    norvik.tomaColores(norvik.colorista()->colores(caja.texto(), Presupuesto()));
    EXPECT_EQ(caja.colores().size(), 3U);
    norvik.Text(u"begin");
    EXPECT_EQ(caja.colores(), (std::vector<TramoDeColor>{{0, 5, 0x800000}})) << "a short one does not wait";
}

/// Whoever was to bring other colours is late: the mark goes with the change all the same.
TEST(ColoresAlDia, NingunaMarcaEsperaALosColores) {
    struct Tarda : Contenedor {
        bool coloreaDespues() override { return true; }
    } contenedor;
    SistemaVigilado sistema;
    CajaTexto caja;
    Norvik norvik{caja, sistema, contenedor};
    ASSERT_TRUE(norvik.CargaGramatica(mini) && norvik.GeneraCompilador());
    norvik.Colorear(true);
    norvik.ponAyudas({.coloreaAlEscribir = true});
    norvik.Text(u"y\r\n" + std::u16string(ColoresAlDia::maximoAlMomento, u'x'));
    for (const std::int16_t linea : {std::int16_t{1}, std::int16_t{3}}) {
        norvik.MarcaErrorLinea(linea);
        EXPECT_EQ(caja.colores().size(), 2U);
        caja.selecciona(1, 0);
        caja.reemplazaSeleccion(u"\r\n");
        EXPECT_EQ(caja.colores().size(), 1U);
    }
}

/// One reading tells the colours of a text and its literals.
TEST(ColoresAlDia, LosLiteralesSonLosDelTextoDeAhora) {
    EditorAlDia e(u"x 'a' /* b */");
    const auto literales = [&] { return *e.norvik.literales(); };
    EXPECT_EQ(literales(), (std::vector<Literal>{{2, 5}, {6, 13}}));
    e.caja.selecciona(0, 1);
    escribe(e, {});
    EXPECT_EQ(literales(), (std::vector<Literal>{{1, 4}, {5, 12}}));
    e.norvik.ponAyudas({});
    escribe(e, u"zz");
    EXPECT_EQ(literales(), (std::vector<Literal>{{3, 6}, {7, 14}}));
    e.compila(u"Token id = \"[a-z]+\"; S -> id;");
    EXPECT_EQ(literales(), std::vector<Literal>());
}

TEST(ColoresAlDia, TrasEdicionesAlAzar) {
    std::mt19937 azar(20261126);
    const std::array<std::u16string_view, 12> trozos = {
        u"/*", u"*/", u"'", u"begin", u" 12", u" x", u"+", u"\r\n", u"*", u"/", u" ", u"begin 1 /*"};
    EditorAlDia e;
    int comparados = 0;
    for (int paso = 0, todos = pasos(5000); paso < todos; ++paso) {
        const auto largo = static_cast<std::int32_t>(e.caja.texto().size());
        e.caja.selecciona(static_cast<std::int32_t>(azar() % (static_cast<unsigned>(largo) + 1)),
                          azar() % 4 == 0 ? 3 : 0);
        switch (azar() % 8) {
        case 0:
            e.norvik.Undo();
            break;
        case 1:
            e.norvik.MarcaErrorLinea(static_cast<std::int16_t>(azar() % 5 + 1));
            continue;
        case 2:
            escribe(e, {});
            break;
        default:
            escribe(e, trozos[azar() % trozos.size()]);
        }
        if (largo > 120) e.caja.ponTexto({});
        if (paso % 3 != 0) continue;
        escribe(e, u"x");
        const std::u16string texto = e.norvik.Text();
        CajaTexto otra;
        otra.ponTexto(texto);
        if (otra.texto() != texto) continue; // half a line break, which a text that is put at once has not
        ASSERT_EQ(e.caja.colores(), deUnaVez(texto)) << aUtf8(texto);
        ++comparados;
    }
    EXPECT_GT(comparados, 250);
}
