// SPDX-License-Identifier: MIT

// Long work of the windows: it is done in another thread while there is a notice, and a person ends it.
#include "apoyo/gramaticaLarga.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/tools/codigoGramatica.hpp"
#include "norvik/tools/ppControl.hpp"
#include "norvik/tools/probarLenguaje.hpp"
#include "norvik/tools/procesando.hpp"
#include "norvik/tools/ventanas.hpp"
#include "qt/sistemaDePrueba.hpp"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

using namespace norvik;
using namespace std::chrono_literals;

namespace {

Procesando* aviso() {
    const auto ventanas = QApplication::topLevelWidgets();
    for (QWidget* const ventana : ventanas)
        if (auto* const suyo = qobject_cast<Procesando*>(ventana); suyo != nullptr && suyo->isVisible())
            return suyo;
    return nullptr;
}

/// Someone who presses Cancel as soon as there is a notice whose work takes a while.
struct Impaciente {
    explicit Impaciente(std::function<void(Procesando&)> como) : comoCancela(std::move(como)) {
        QObject::connect(&reloj, &QTimer::timeout, [this] {
            Procesando* const suyo = aviso();
            if (suyo == nullptr || !suyo->testAttribute(Qt::WA_SetCursor)) return;
            EXPECT_EQ(QApplication::activeModalWidget(), suyo);
            cronometro.start();
            comoCancela(*suyo);
            reloj.stop();
        });
        reloj.start(10ms);
    }
    std::function<void(Procesando&)> comoCancela;
    QTimer reloj;
    QElapsedTimer cronometro; ///< since it was pressed
};

void pulsaCancelar(Procesando& aviso) {
    aviso.findChild<QPushButton*>("cancelar")->click();
}

void hastaQueSePida(const std::stop_token& parada) {
    while (!parada.stop_requested()) std::this_thread::sleep_for(1ms);
}

} // namespace

TEST(Procesando, SinAvisoNadaCambiaDeHilo) {
    SistemaQt sistema;
    std::thread::id hilo;
    sistema.trabaja([&](const std::stop_token& parada) {
        hilo = std::this_thread::get_id();
        EXPECT_FALSE(parada.stop_possible());
    });
    EXPECT_EQ(hilo, std::this_thread::get_id());
    const Procesando deOtro(sistema, nullptr);
    sistema.trabaja([&](const std::stop_token&) { hilo = std::this_thread::get_id(); });
    EXPECT_NE(hilo, std::this_thread::get_id());
    EXPECT_THROW(sistema.trabaja([](const std::stop_token&) { throw Desbordamiento(); }), Desbordamiento);
}

TEST(Procesando, SeCancelaPorElBotonYPorTeclas) {
    SistemaQt sistema;
    const std::pair<const char*, std::function<void(Procesando&)>> formas[] = {
        {"boton", pulsaCancelar},
        {"escape", [](Procesando& a) { QTest::keyClick(&a, Qt::Key_Escape); }},
        {"espacio", [](Procesando& a) { QTest::keyClick(a.focusWidget(), Qt::Key_Space); }},
        {"cerrar", [](Procesando& a) { EXPECT_FALSE(a.close()); }},
    };
    for (const auto& [forma, como] : formas) {
        Procesando suyo(sistema, nullptr, Procesando::Aparece::SiTarda);
        EXPECT_FALSE(suyo.isVisible()) << forma;
        const Impaciente persona(como);
        EXPECT_THROW(sistema.trabaja(hastaQueSePida), OperacionCancelada) << forma;
        EXPECT_TRUE(suyo.isVisible()) << forma;
        bool hecho = false;
        EXPECT_THROW(sistema.trabaja([&](const std::stop_token&) { hecho = true; }), OperacionCancelada);
        EXPECT_FALSE(hecho) << "nothing of the same command begins any more";
    }
}

TEST(Procesando, QuienTrabajaEnSuPropioSucesoEsperaASuVez) {
    SistemaQt sistema;
    const Procesando suyo(sistema, nullptr);
    int dentro = 0;
    QTimer::singleShot(150ms, [&] { sistema.trabaja([&](const std::stop_token&) { ++dentro; }); });
    sistema.trabaja([](const std::stop_token&) { std::this_thread::sleep_for(400ms); });
    EXPECT_EQ(dentro, 1);
}

// The pages and the editor of grammars: twice each, and all is as it was.
TEST(Procesando, UnaGramaticaInterminableSeCancelaEnLasVentanas) {
    const std::string larga = apoyo::gramaticaLarga();
    SistemaDePrueba sistema;
    ControlNorvik norvik(sistema, nullptr);
    PPControl pagina(sistema);
    pagina.cambiaSeleccion({&norvik});
    pagina.show();
    CodigoGramatica editor(sistema);
    const RanurasDisenio ranuras{std::u16string(larga.begin(), larga.end()), u"prueba", false};
    ranurasDisenio() = ranuras;
    editor.carga();
    editor.show();
    const std::function<void()> ordenes[] = {
        [&] { pagina.findChild<QPushButton*>("Command5")->click(); },
        [&] { editor.findChild<QAction*>("VerInforme")->trigger(); },
        [&] { editor.findChild<QAction*>("ProbarLenguaje")->trigger(); },
    };
    for (const auto& orden : ordenes) {
        for (int vez = 0; vez < 2; ++vez) {
            const Impaciente persona(pulsaCancelar);
            orden();
            ASSERT_TRUE(persona.cronometro.isValid());
            EXPECT_LT(persona.cronometro.elapsed(), 2000);
            EXPECT_TRUE(sistema.dameMensajes().empty());
            EXPECT_EQ(aviso(), nullptr);
            EXPECT_EQ(sistema.puntero(), Puntero::Normal);
            EXPECT_EQ(ranurasDisenio(), ranuras);
        }
    }
    EXPECT_EQ(sistema.ventanas, "");
}

// Each operator meets each other one: a short specification, and an automaton of hundreds of thousands of
// lines.
TEST(Procesando, UnInformeEnormeSeDejaDeEscribir) {
    SistemaDePrueba sistema;
    ControlNorvik norvik(sistema, nullptr);
    std::string especificacion = "'% metodo: lalr\r\nToken n = \"n\";\r\n";
    std::string reglas = "E -> n";
    for (int i = 0; i < 350; ++i) {
        const std::string operador = "o" + std::to_string(i);
        especificacion += "Token " + operador + " = \"" + operador + "\";\r\n";
        reglas += " | E " + operador + " E";
    }
    especificacion += reglas + ";";
    ASSERT_TRUE(
        norvik.control().CargaGramatica(std::u16string(especificacion.begin(), especificacion.end())));
    ASSERT_TRUE(norvik.control().GeneraCompilador());
    for (int vez = 0; vez < 2; ++vez) {
        const Impaciente persona(pulsaCancelar);
        norvik.control().MuestraInforme();
        ASSERT_TRUE(persona.cronometro.isValid());
        EXPECT_LT(persona.cronometro.elapsed(), 2000);
        EXPECT_EQ(aviso(), nullptr);
    }
    EXPECT_EQ(sistema.ventanas, "");
}

// The line that is being typed on waits for its colours until the focus is lost, which goes to the notice.
TEST(Procesando, UnTextoDesbocadoSeDejaDeReconocer) {
    SistemaDePrueba sistema;
    ProbarLenguaje prueba(sistema);
    Norvik& control = prueba.Norvik1().control();
    control.CargaGramatica(uR"(Token t = "(a*)*\1c"; S -> t;)");
    control.GeneraCompilador();
    control.Text(std::u16string(30'000, u'a'));
    prueba.show();
    QApplication::setActiveWindow(&prueba);
    QWidget& caja = prueba.Norvik1().caja().ventana();
    for (int vez = 0; vez < 2; ++vez) {
        caja.setFocus();
        QTest::keyClick(&caja, Qt::Key_A);
        const Impaciente persona(pulsaCancelar);
        prueba.findChild<QAction*>("Test")->trigger();
        ASSERT_TRUE(persona.cronometro.isValid());
        EXPECT_LT(persona.cronometro.elapsed(), 2000);
        EXPECT_TRUE(sistema.dameMensajes().empty());
    }
    control.Text(u"aac");
    prueba.findChild<QAction*>("Test")->trigger();
    EXPECT_EQ(sistema.dameMensajes().at(0).texto, u"Análisis sintáctico correcto");
}
