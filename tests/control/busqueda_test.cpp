// SPDX-License-Identifier: MIT

// Searching and replacing, as the find and the replace dialog do it.
#include "apoyo/anfitrion.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/control/buscador.hpp"
#include "norvik/control/historial.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

using namespace norvik;
using namespace norvik::apoyo;

namespace {

struct BusquedaTest : testing::Test {
    BusquedaTest() {
        estadoBusqueda() = {};
        a.norvik.ShowBuscarDialog();
    }
    ~BusquedaTest() override { estadoBusqueda() = {}; }

    void empieza(std::u16string_view texto, std::int32_t cursor, std::int32_t longitud = 0) {
        a.norvik.Text(texto);
        a.norvik.InicializaUndosYRedos();
        a.caja.selecciona(cursor, longitud);
        a.sistema.mensajes.clear();
    }
    /// The text with the selection in brackets, and the messages.
    std::string foto() {
        std::u16string texto = a.norvik.Text();
        const auto inicio = static_cast<std::size_t>(a.caja.inicioSeleccion());
        texto.insert(inicio + static_cast<std::size_t>(a.caja.longitudSeleccion()), u"]")
            .insert(inicio, u"[");
        for (const auto& m : std::exchange(a.sistema.mensajes, {}))
            texto += u" | " + m.titulo + u": " + m.texto;
        return aUtf8(texto);
    }

    Anfitrion a;
    Buscador buscador;
};

constexpr auto noEsta = " | : No se encontró el texto de busqueda";
constexpr auto completada = " | Busqueda completada: Se ha buscado en la región especificada";

} // namespace

TEST_F(BusquedaTest, BuscarSiguiente) {
    using namespace std::string_literals;
    const std::tuple<Peticion, std::u16string_view, std::int32_t, std::string> casos[] = {
        {{u"ab"}, u"ab ab", 0, "ab [ab]"},
        {{u"ab"}, u"ab ab", 3, "ab []ab"s + completada},
        {{u"ab", u"Abajo"}, u"cab", 0, "c[ab]"},
        {{u"ab", u"Arriba"}, u"ab ab ab", 6, "ab [ab] ab"},
        {{u"ab", u"Arriba"}, u"ab", 0, "[]ab"s + completada},
        {{u"ab", u"Hacia allá"}, u"ab ab", 0, "[]ab ab"s + completada},
        {{u"x"}, u"ab", 0, "[]ab"s + noEsta},
        {{u"AB"}, u" ab", 0, " [ab]"},
        {{u"AB", u"Todo", false, true}, u" ab", 0, "[] ab"s + noEsta},
        {{u"ab", u"Todo", true}, u"- cabo ab", 0, "- cabo [ab]"},
        {{u"a|b", u"Todo", true},
         u"- cb b",
         0,
         "- c[b] b"}, // the words' edges bind to the ends of the pattern
        {{u"a.c"}, u"- abc", 0, "- [abc]"},
        {{u""}, u"abc", 0, "[]abc"},
        {{u"a("}, u"abc", 0, "[]abc | : El texto de búsqueda no es una expresión regular correcta"},
        {{u"b*"}, u"abb", 0, "a[bb]"},
    };
    for (const auto& [peticion, texto, cursor, queda] : casos) {
        empieza(texto, cursor);
        buscador.buscaSiguiente(peticion);
        EXPECT_EQ(foto(), queda) << aUtf8(peticion.texto);
    }
}

TEST_F(BusquedaTest, HistorialDelProceso) {
    empieza(u"ab cd", 0);
    for (const auto texto : {u"cd", u"zz", u"cd", u"a("}) buscador.buscaSiguiente({texto});
    const auto& estado = estadoBusqueda();
    EXPECT_EQ(estado.historialBusquedas, (std::vector<std::u16string>{u"cd", u"zz"}));
    EXPECT_EQ(estado.ultimaBusqueda, u"cd"); // a malformed pattern changes nothing
    EXPECT_EQ(estado.direccionBusqueda, u"Abajo");
    {
        Anfitrion otro;
        otro.norvik.Text(u"- cd");
        otro.norvik.ShowBuscarDialog();
        buscador.buscaSiguiente({u"cd"});
        EXPECT_EQ(otro.norvik.SelText(), u"cd");
    }
    EXPECT_EQ(estado.textoDestino, nullptr); // its control is gone
    buscador.buscaSiguiente({u"cd"});
    buscador.reemplazaTodo({u"cd"}, u"x");
    EXPECT_EQ(estado.historialBusquedas.size(), 2U);
}

TEST_F(BusquedaTest, LaVentanaCedeSuPuesto) {
    std::string puestos;
    buscador.ponEncima = [&](bool encima) { puestos += encima ? '+' : '-'; };
    a.caja.ponOcultaSeleccion(true);
    buscador.buscaSiguiente({u"x"});
    EXPECT_EQ(puestos, "");
    buscador.abre();
    EXPECT_TRUE(estadoBusqueda().dialogoAbierto);
    EXPECT_FALSE(a.caja.ocultaSeleccion());
    buscador.buscaSiguiente({u"x"});
    EXPECT_EQ(puestos, "-+");
    buscador.cierra();
    EXPECT_TRUE(a.caja.ocultaSeleccion());
    EXPECT_FALSE(estadoBusqueda().dialogoAbierto);
    buscador.abre();
    Anfitrion otro;
    otro.norvik.ShowBuscarDialog(); // it goes on in another text
    EXPECT_TRUE(a.caja.ocultaSeleccion());
    EXPECT_FALSE(otro.caja.ocultaSeleccion());
    buscador.cierra();
    EXPECT_TRUE(otro.caja.ocultaSeleccion());
}

TEST_F(BusquedaTest, LaExpresionDesbocadaSeDice) {
    empieza(std::u16string(3000, u'a') + u"b", 0);
    const auto antes = a.norvik.Text();
    buscador.reemplazaTodo({u"(a|aa)*(a|aa)*(a|aa)*\\1c"}, u"x");
    ASSERT_EQ(a.sistema.mensajes.size(), 1U);
    EXPECT_TRUE(a.sistema.mensajes[0].texto.starts_with(u"La búsqueda se ha interrumpido"));
    EXPECT_EQ(a.norvik.Text(), antes);
}

// What was found in a text that is another by then is not put into that one, and who gives up hears nothing.
TEST_F(BusquedaTest, MientrasSeBusca) {
    const std::pair<std::function<void()>, std::string> casos[] = {
        {[] {}, "x x[] | Reemplazo completado: Se han hecho 2 reemplazos"},
        {[&] { a.norvik.Text(u"a"); }, "[]a"},
        {[&] { a.norvik.Text(u"ba ba"); }, "[]ba ba"},
        {[] { throw OperacionCancelada(); }, "[]ab ab"},
        {[] { estadoBusqueda() = {}; }, "[]ab ab"}, // the control is gone, as far as the search knows
    };
    for (const auto& caso : casos) {
        empieza(u"ab ab", 0);
        buscador.trabaja = [&](const auto& trabajo) {
            trabajo({});
            caso.first();
        };
        buscador.reemplazaTodo({u"ab"}, u"x");
        EXPECT_EQ(foto(), caso.second);
    }
}

TEST_F(BusquedaTest, Reemplazar) {
    const std::tuple<Peticion, std::u16string_view, std::int32_t, std::int32_t, std::u16string_view,
                     std::string>
        casos[] = {
            {{u"ab"}, u"ab ab", 0, 2, u"x", "x [ab]"},
            {{u"ab"}, u"abab", 0, 2, u"x", "x[ab]"}, // the next one follows at once
            {{u"ab"}, u"ab ab", 0, 0, u"x", "ab [ab]"},
            {{u"ab"}, u"ab ab", 0, 1, u"x", "ab [ab]"},
            {{u"a+"}, u"aa ab", 0, 2, u"aaa", "aaa [a]b"},
            {{u"ab", u"Arriba"}, u"ab ab", 3, 2, u"ab", "[ab] ab"},
            {{u"b"}, u"ab", 1, 1, u"", "a[] | : No se encontró el texto de busqueda"},
        };
    for (const auto& [peticion, texto, cursor, longitud, con, queda] : casos) {
        empieza(texto, cursor, longitud);
        buscador.reemplaza(peticion, con);
        EXPECT_EQ(foto(), queda) << aUtf8(texto);
    }
}

TEST_F(BusquedaTest, ReemplazarTodoEsUnPasoDeDeshacer) {
    const std::tuple<Peticion, std::u16string_view, std::u16string_view, std::u16string_view, int> casos[] = {
        {{u"a"}, u"banana", u"XY", u"bXYnXYnXY", 3}, {{u"AN"}, u"banana", u"", u"ba", 2},
        {{u"b"}, u"abc", u"q", u"aqc", 1},           {{u"\\r\\n"}, u"1\r\n2\r\n3", u"\n", u"1\r\n2\r\n3", 2},
        {{u"x*"}, u"ab", u"-", u"-a-b-", 3},         {{u"z"}, u"abc", u"q", u"abc", 0},
    };
    for (const auto& [peticion, texto, con, queda, cuantos] : casos) {
        empieza(u"", 0);
        a.norvik.Text(texto);
        buscador.reemplazaTodo(peticion, con);
        EXPECT_EQ(a.norvik.Text(), queda);
        ASSERT_EQ(a.sistema.mensajes.size(), 1U);
        const auto& dicho = a.sistema.mensajes[0].texto;
        EXPECT_EQ(dicho.find(aTexto(cuantos)) != dicho.npos, cuantos > 0);
        EXPECT_EQ(a.norvik.historial().undos().cuantas(), cuantos > 0 ? 2U : 1U);
        a.norvik.Undo();
        EXPECT_EQ(a.norvik.Text(), texto);
        a.norvik.Redo();
        EXPECT_EQ(a.norvik.Text(), queda);
    }
}

/// Nobody comes between what was found and what takes its place.
TEST_F(BusquedaTest, UnReceptorQueMueveElCursorNoMueveElReemplazo) {
    for (const bool todo : {false, true}) {
        empieza(u"ab x ab", 0, 2);
        a.norvik.eventos.SelChange = [&] { a.caja.selecciona(3, 0); };
        a.norvik.eventos.CambioDeLinea = [&](std::int16_t&) { a.caja.selecciona(3, 0); };
        todo ? buscador.reemplazaTodo({u"ab"}, u"c\n") : buscador.reemplaza({u"ab"}, u"c\n");
        a.norvik.eventos = {};
        EXPECT_EQ(a.norvik.Text(), todo ? u"c\r\n x c\r\n" : u"c\r\n x ab");
    }
}

TEST_F(BusquedaTest, EnUnTextoQueYaNoSeColorea) {
    const std::u16string relleno(33000, u'x');
    a.norvik.Colorear(true);
    a.norvik.MuestraMensajesDeError(true);
    empieza(u"ab\r\n" + relleno + u"\r\nab\r\nab\r\nab", 0, 2);
    for (const std::int32_t siguiente : {33007, 33012, 33017}) {
        buscador.reemplaza({u"ab"}, u"yyy");
        EXPECT_EQ(a.caja.inicioSeleccion(), siguiente);
        EXPECT_EQ(a.caja.textoSeleccionado(), u"ab");
    }
    buscador.reemplazaTodo({u"y+"}, u"z");
    EXPECT_EQ(a.norvik.Text(), u"z\r\n" + relleno + u"\r\nz\r\nz\r\nab");
    ASSERT_EQ(a.sistema.mensajes.size(), 1U);
    EXPECT_EQ(a.sistema.mensajes[0].texto, u"Se han hecho 3 reemplazos");
}

TEST_F(BusquedaTest, Find) {
    empieza(u"ab AB ab", 5);
    EXPECT_EQ(a.norvik.Find(u"AB"), 0);
    EXPECT_EQ(a.norvik.Find(u"AB", 1, 0, opcionBusqueda::distingueMayusculas), 3);
    EXPECT_EQ(a.norvik.SelText(), u"AB");
    EXPECT_EQ(a.norvik.Find(u"ab", 4, 7), -1);
}
