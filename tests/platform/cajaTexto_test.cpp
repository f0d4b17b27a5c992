// What a text box must do, whatever it is made of: one suite, run on every box.
#include "norvik/platform/memoria/cajaTextoMemoria.hpp"
#include "norvik/platform/memoria/sistemaMemoria.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

struct Fabrica {
    const char* nombre;
    std::unique_ptr<CajaTexto> (*crea)();
};

class CajaTextoTest : public testing::TestWithParam<Fabrica> {
protected:
    CajaTextoTest() {
        caja.eventos.cambio = [this] { sucesos += u'c'; };
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

    const std::unique_ptr<CajaTexto> propia = GetParam().crea();
    CajaTexto& caja = *propia;
    std::u16string sucesos;
};

constexpr Fabrica cajas[] = {
    {"memoria", []() -> std::unique_ptr<CajaTexto> { return std::make_unique<CajaTextoMemoria>(); }}};
INSTANTIATE_TEST_SUITE_P(Cajas, CajaTextoTest, testing::ValuesIn(cajas),
                         [](const auto& caso) { return caso.param.nombre; });

} // namespace

TEST_P(CajaTextoTest, NuevaEstaVacia) {
    EXPECT_EQ(texto(), u"");
    EXPECT_EQ(caja.inicioSeleccion(), 0);
    EXPECT_EQ(caja.longitudSeleccion(), 0);
    EXPECT_EQ(caja.colorSeleccion(), 0);
    EXPECT_FALSE(caja.modificado());
    EXPECT_TRUE(caja.ocultaSeleccion());
    EXPECT_EQ(caja.numeroDeLineas(), 1);
}

TEST_P(CajaTextoTest, LineasConSaltosDeDosCaracteres) {
    caja.ponTexto(u"ab\r\n\r\nñc");
    EXPECT_EQ(caja.numeroDeLineas(), 3);
    const std::int32_t lineas[] = {0, 0, 0, 0, 1, 1, 2, 2, 2, 2};
    for (std::int32_t i = 0; i < 10; ++i) EXPECT_EQ(caja.lineaDeCaracter(i), lineas[i]) << i;
    EXPECT_EQ(caja.inicioDeLinea(0), 0);
    EXPECT_EQ(caja.inicioDeLinea(1), 4);
    EXPECT_EQ(caja.inicioDeLinea(2), 6);
    EXPECT_EQ(caja.inicioDeLinea(3), -1);
    EXPECT_EQ(caja.inicioDeLinea(-1), -1);
    caja.selecciona(2, 4);
    EXPECT_EQ(caja.textoSeleccionado(), u"\r\n\r\n");
    caja.reemplazaSeleccion(u"");
    EXPECT_EQ(caja.numeroDeLineas(), 1);
    EXPECT_EQ(texto(), u"abñc");
}

TEST_P(CajaTextoTest, LaSeleccionQuedaDentroDelTexto) {
    caja.ponTexto(u"0123456789");
    const struct {
        std::int32_t inicio, longitud, quedaInicio, quedaLongitud;
    } casos[] = {{3, 4, 3, 4}, {8, 5, 8, 2}, {20, 5, 10, 0}, {-3, 2, 0, 2}, {4, -1, 4, 0}, {0, 10, 0, 10}};
    for (const auto& c : casos) {
        caja.selecciona(c.inicio, c.longitud);
        EXPECT_EQ(caja.inicioSeleccion(), c.quedaInicio) << c.inicio << ',' << c.longitud;
        EXPECT_EQ(caja.longitudSeleccion(), c.quedaLongitud) << c.inicio << ',' << c.longitud;
    }
}

TEST_P(CajaTextoTest, ReemplazarDejaElCursorDetras) {
    const struct {
        std::int32_t inicio, longitud;
        std::u16string nuevo, queda;
    } casos[] = {{2, 3, u"X", u"01X56789"},
                 {2, 3, u"XYZ", u"01XYZ56789"},
                 {10, 0, u"\r\n", u"0123456789\r\n"},
                 {0, 10, u"", u""},
                 {0, 0, u"ABCDE", u"ABCDE0123456789"}};
    for (const auto& c : casos) {
        caja.ponTexto(u"0123456789");
        caja.selecciona(c.inicio, c.longitud);
        caja.reemplazaSeleccion(c.nuevo);
        EXPECT_EQ(texto(), c.queda);
        EXPECT_EQ(caja.inicioSeleccion(), c.inicio + static_cast<std::int32_t>(c.nuevo.size()));
        EXPECT_EQ(caja.longitudSeleccion(), 0);
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
    caja.reemplazaSeleccion(u"x");
    EXPECT_EQ(dameSucesos(), u"cs");
    caja.reemplazaSeleccion(u"");
    EXPECT_EQ(dameSucesos(), u""); // nothing by nothing
    caja.ponTexto(u"");
    EXPECT_EQ(dameSucesos(), u"cs");
}

TEST_P(CajaTextoTest, ElAvisoVeElTextoNuevo) {
    std::vector<std::int32_t> vistos;
    caja.eventos.cambio = [&] {
        vistos.push_back(caja.numeroDeLineas());
        vistos.push_back(caja.inicioSeleccion());
    };
    caja.ponTexto(u"a\r\nb");
    caja.selecciona(4, 0);
    caja.reemplazaSeleccion(u"\r\n");
    EXPECT_EQ(vistos, (std::vector<std::int32_t>{2, 0, 3, 6}));
}

TEST_P(CajaTextoTest, ModificadoDesdeQueSeEdita) {
    caja.ponTexto(u"abc");
    EXPECT_FALSE(caja.modificado());
    caja.selecciona(0, 1);
    caja.ponColorSeleccion(3);
    EXPECT_FALSE(caja.modificado());
    caja.reemplazaSeleccion(u"x");
    EXPECT_TRUE(caja.modificado());
    caja.ponModificado(false);
    EXPECT_FALSE(caja.modificado());
    caja.reemplazaSeleccion(u"y");
    caja.ponTexto(u"abc");
    EXPECT_FALSE(caja.modificado());
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

TEST_P(CajaTextoTest, EdicionesAlAzarComoUnModeloLlano) {
    std::mt19937 azar(7);
    std::u16string modelo;
    std::string coloresModelo;
    const std::u16string_view piezas[] = {u"", u"a", u"\r\n", u"bcd", u"\r\n\r\n"};
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
    }
    EXPECT_EQ(colores(), coloresModelo);
}

TEST(CajaTextoMemoria, TramosDeColor) {
    CajaTextoMemoria caja;
    EXPECT_TRUE(caja.colores().empty());
    caja.ponTexto(u"0123456789");
    EXPECT_EQ(caja.colores(), (std::vector<TramoDeColor>{{0, 10, 0}}));
    caja.selecciona(4, 2);
    caja.ponColorSeleccion(8);
    EXPECT_EQ(caja.colores(), (std::vector<TramoDeColor>{{0, 4, 0}, {4, 2, 8}, {6, 4, 0}}));
}

TEST(SistemaMemoria, LosMensajesVanDondeElAnfitrionDiga) {
    std::vector<Mensaje> vistos;
    SistemaMemoria sistema([&](const Mensaje& m) { vistos.push_back(m); });
    EXPECT_EQ(sistema.muestraMensaje({u"texto", u"título", Icono::Critico}), Respuesta::Aceptar);
    EXPECT_EQ(vistos, (std::vector<Mensaje>{{u"texto", u"título", Icono::Critico}}));
    {
        const PunteroOcupado ocupado(sistema);
        EXPECT_EQ(sistema.puntero(), Puntero::Ocupado);
    }
    EXPECT_EQ(sistema.puntero(), Puntero::Normal);
}
