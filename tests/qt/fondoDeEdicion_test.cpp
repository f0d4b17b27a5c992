// SPDX-License-Identifier: MIT

// What other threads find out about the edited text.
#include "norvik/base/numeros.hpp"
#include "norvik/control/coloresAlDia.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/widget/controlNorvik.hpp"
#include "norvik/widget/fondoDeEdicion.hpp"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using namespace norvik;

namespace {

constexpr std::u16string_view conBloques = u"Token com = \"/\\*([^*])*\\*/\", TipoToken = TTComentarioBloque;"
                                           u"Token num = \"[0-9]+\", TipoToken = TTNumero;"
                                           u"Token ini = \"begin\", TipoToken = TTPalabraReservada;"
                                           u"Token fin = \"end\"; Token id = \"[a-z]+\";"
                                           u"S -> S T | T; T -> num | id | ini S fin;";

std::u16string largo() {
    std::u16string texto;
    while (texto.size() <= 2 * ColoresAlDia::maximoAlMomento) texto += u"begin x 12 end\r\n";
    return texto;
}

struct Ventana {
    Ventana() {
        norvik->control().CargaGramatica(conBloques);
        norvik->control().GeneraCompilador();
        norvik->Colorear(true);
        norvik->coloreaAlEscribir(true);
        norvik->pliega(true);
        norvik->show();
    }
    std::int32_t colorEn(std::int32_t posicion) const {
        for (const TramoDeColor& t : norvik->caja().colores())
            if (posicion < t.inicio + t.longitud) return t.color;
        return -1;
    }
    void escribe(std::u16string_view texto) const { norvik->caja().reemplazaSeleccion(texto); }

    std::unique_ptr<ControlNorvik> norvik = std::make_unique<ControlNorvik>();
};

constexpr std::int32_t azul = 0x800000;
constexpr std::int32_t verde = 0x008000;

} // namespace

TEST(FondoDeEdicion, UnTextoLargoSeColoreaAparte) {
    Ventana v;
    v.norvik->Text(QString::fromStdU16String(largo()));
    const std::int32_t ultima = a32(largo().size()) - 16;
    EXPECT_EQ(v.colorEn(ultima), 0);
    QTRY_VERIFY(v.colorEn(ultima) == azul);
    v.norvik->caja().selecciona(0, 0);
    v.escribe(u"/*"); // never closed
    QTest::qWait(200);
    EXPECT_EQ(v.colorEn(ultima + 2), azul);
    v.norvik->caja().selecciona(a32(largo().size()) + 2, 0);
    v.escribe(u"*/");
    QTRY_VERIFY(v.colorEn(ultima + 2) == verde);
    v.norvik->caja().selecciona(0, 2);
    v.escribe({});
    QTRY_VERIFY(v.colorEn(ultima) == azul);
}

/// However it comes: as a whole, call by call, by a module.
TEST(FondoDeEdicion, LosColoresSonLosDelLenguajeQueSeCarga) {
    for (const bool esLargo : {false, true}) {
        Ventana v;
        Norvik& control = v.norvik->control();
        const std::u16string modulo = control.Gramatica().textoModulo(u"M", control.Lexico());
        v.norvik->Text(QString::fromStdU16String(esLargo ? largo() : u"begin x 12"));
        QTRY_VERIFY(v.colorEn(0) == azul);
        v.norvik->OlvidaLenguaje();
        QTRY_VERIFY(v.colorEn(0) == 0);
        control.SetER(u"x", u"x", true, Norvik_ComentarioBloque);
        QTRY_VERIFY(v.colorEn(6) == verde);
        control.OlvidaLenguaje();
        EXPECT_FALSE(CargaModulo(modulo, control));
        QTRY_VERIFY(v.colorEn(0) == azul && v.colorEn(6) == 0);
        control.CargaGramatica(u"Token id = \"[a-z]+\", TipoToken = TTComentarioBloque; S -> id;");
        control.GeneraCompilador();
        QTRY_VERIFY(v.colorEn(0) == verde);
        v.norvik->coloreaAlEscribir(false);
        control.OlvidaLenguaje();
        QTest::qWait(50);
        EXPECT_EQ(v.colorEn(0), verde);
    }
}

TEST(FondoDeEdicion, ElTextoCambiaMientrasSeLee) {
    Ventana v;
    v.norvik->Text(QString::fromStdU16String(largo()));
    for (int i = 0; i < 20; ++i) {
        v.escribe(u"y ");
        QTest::qWait(5);
    }
    QTRY_VERIFY(v.colorEn(40) == azul);
    EXPECT_EQ(v.colorEn(20), 0);
}

/// Keys that come faster than one reading ends: all but what they are changing has its colours.
TEST(FondoDeEdicion, LosColoresLleganAunqueNoSeDejeDeEscribir) {
    Ventana v;
    v.norvik->Text(QString::fromStdU16String(largo()));
    const std::int32_t medio = 16 * 3000;
    v.norvik->caja().selecciona(medio, 0);
    const auto deUnaVez = v.norvik->control().colorista();
    int tecla = 0;
    const auto ultima = [&] { return a32(v.norvik->caja().texto().size()) - 16; };
    for (; tecla < 3000 && v.colorEn(ultima()) != azul; ++tecla) {
        v.escribe(tecla % 7 == 3 ? u"\n" : u"y");
        QTest::qWait(1);
    }
    ASSERT_EQ(v.colorEn(ultima()), azul);
    CajaTexto todos;
    todos.ponTexto(v.norvik->caja().texto());
    for (const TramoDeColor& t : deUnaVez->colores(todos.texto(), Presupuesto()))
        todos.pinta(t.inicio, t.longitud, t.color);
    const auto coinciden = [&](std::int32_t desde, std::int32_t hasta) {
        std::int32_t iguales = 0;
        for (std::int32_t i = desde; i < hasta; ++i)
            iguales += v.norvik->caja().colorDe(i) == todos.colorDe(i);
        return iguales == hasta - desde;
    };
    EXPECT_TRUE(coinciden(0, medio));
    EXPECT_TRUE(coinciden(v.norvik->caja().inicioSeleccion() + 16, a32(todos.texto().size())));
    QTRY_VERIFY(coinciden(0, a32(todos.texto().size())));
}

TEST(FondoDeEdicion, LoQueTardaDemasiadoSeDiceUnaVez) {
    for (const bool esLargo : {false, true}) {
        Ventana v;
        int fallos = 0;
        v.norvik->coloreaAlEscribir(esLargo);
        v.norvik->resaltaParejas(!esLargo);
        QObject::connect(v.norvik.get(), &ControlNorvik::fallo, [&](const QString& texto, bool& contado) {
            EXPECT_TRUE(texto.contains("desbocado")) << texto.toStdString();
            ++fallos;
            contado = true;
        });
        v.norvik->OlvidaLenguaje();
        v.norvik->control().CargaGramatica(u"Token y = \"(a*)*\\1c\"; Token p = \"\\(\"; S -> y | p;");
        v.norvik->control().GeneraCompilador();
        v.norvik->Text(QString(esLargo ? 70'000 : 3'000, u'a') + "(");
        v.norvik->caja().selecciona(a32(v.norvik->caja().texto().size()), 0);
        static_cast<void>(QTest::qWaitFor([&] { return fallos > 0; }, 10'000));
        for (int vez = 0; vez < 3; ++vez) {
            v.escribe(u"(");
            QTest::qWait(400);
        }
        EXPECT_EQ(fallos, 1) << esLargo;
    }
}

TEST(FondoDeEdicion, OtroLenguajeMientrasSeLee) {
    Ventana v;
    v.norvik->Text(QString::fromStdU16String(largo()));
    QTest::qWait(25);
    v.norvik->OlvidaLenguaje();
    v.norvik->ColorComentarios(0x112233);
    v.norvik->control().CargaGramatica(
        u"Token c = \"begin[^\\n]*\", TipoToken = TTComentarioLinea; Token d = \"e\"; S -> d;");
    v.norvik->control().GeneraCompilador();
    v.escribe(u"begin");
    QTRY_VERIFY(v.colorEn(8) == 0x112233);
}

TEST(FondoDeEdicion, ElControlSeVaMientrasSeLee) {
    for (int espera = 0; espera < 60; espera += 6) {
        Ventana v;
        v.norvik->Text(QString::fromStdU16String(largo()));
        QTest::qWait(espera);
        v.norvik.reset();
    }
    QTest::qWait(50);
}

TEST(FondoDeEdicion, LasConstruccionesSiguenAlTexto) {
    Ventana v;
    FondoDeEdicion fondo(v.norvik->control(), v.norvik->caja());
    int avisos = 0;
    fondo.otrosPliegues = [&] { ++avisos; };
    v.norvik->Text(QStringLiteral("begin\n x\nend\nbegin y\nend"));
    fondo.otrasAyudas();
    QTRY_VERIFY(avisos > 0);
    EXPECT_EQ(fondo.pliegues().en(v.norvik->caja()), (std::vector<Pliegue>{{0, 2}, {3, 4}}));
    v.escribe(u"\n");
    CambioDeTexto cambio;
    cambio.puestos = 2;
    fondo.cambioElTexto(cambio);
    EXPECT_EQ(fondo.pliegues().en(v.norvik->caja()), (std::vector<Pliegue>{{1, 3}, {4, 5}}));
    QTRY_VERIFY(avisos > 1);
    EXPECT_EQ(fondo.pliegues().en(v.norvik->caja()), (std::vector<Pliegue>{{1, 3}, {4, 5}}));
    v.norvik->pliega(false);
    fondo.otrasAyudas();
    EXPECT_TRUE(fondo.pliegues().en(v.norvik->caja()).empty());
}
