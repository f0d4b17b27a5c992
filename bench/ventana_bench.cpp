// SPDX-License-Identifier: MIT

// Times what the widget costs while a person edits, on the C-like example's text near 30,000 characters:
// a typed character, leaving a line, colouring the whole; each with the events that it leaves pending,
// painting among them. The window is drawn in memory. The last one is of a long text.
#include "lenguaje.hpp"

#include "norvik/base/ficheros.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/widget/controlNorvik.hpp"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QThread>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

namespace norvik::bench {
namespace {

/// The text loaded and coloured, the caret in the middle of it.
class Ventana {
public:
    Ventana() {
        Norvik& control = norvik.control();
        control.CargaGramatica(leeTexto(delRepositorio("ejemplos/c/c.nvk")));
        control.GeneraCompilador();
        control.Colorear(true);
        norvik.resize(1000, 700);
        norvik.show();
        QApplication::setActiveWindow(&norvik);
        norvik.setFocus();
        carga();
    }
    void carga() {
        norvik.control().CargarFichero(delRepositorio("ejemplos/c/bien/grande.c"));
        caja.selecciona(caja.inicioDeLinea(caja.numeroDeLineas() / 2), 0);
        QCoreApplication::processEvents();
    }
    void pulsa(Qt::Key tecla, const QString& texto = {}) {
        for (const auto suceso : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent evento(suceso, tecla, Qt::NoModifier, texto);
            QCoreApplication::sendEvent(&caja.ventana(), &evento);
        }
        QCoreApplication::processEvents();
    }

    ControlNorvik norvik;
    CajaTextoQt& caja = norvik.caja();
};

void teclear(benchmark::State& estado) {
    Ventana v;
    const auto antes = v.caja.texto().size();
    int tecleados = 0;
    for ([[maybe_unused]] auto vuelta : estado) {
        v.pulsa(Qt::Key_A, QStringLiteral("a"));
        if (++tecleados % 500 != 0) continue;
        estado.PauseTiming();
        v.carga();
        estado.ResumeTiming();
    }
    if (v.caja.texto().size() != antes + static_cast<std::size_t>(tecleados % 500))
        estado.SkipWithError("the keys did not write");
}
BENCHMARK(teclear)->Unit(benchmark::kMillisecond);

/// A character typed, which turns the line plain, then the arrow that leaves it, which alone is timed.
void dejarLinea(benchmark::State& estado) {
    Ventana v;
    int vueltas = 0;
    for ([[maybe_unused]] auto vuelta : estado) {
        estado.PauseTiming();
        if (++vueltas % 200 == 0) v.carga();
        v.pulsa(Qt::Key_A, QStringLiteral("a"));
        estado.ResumeTiming();
        v.pulsa(vueltas % 2 == 0 ? Qt::Key_Down : Qt::Key_Up);
    }
}
BENCHMARK(dejarLinea)->Unit(benchmark::kMillisecond);

void colorearTodo(benchmark::State& estado) {
    Ventana v;
    for ([[maybe_unused]] auto vuelta : estado) {
        estado.PauseTiming();
        v.caja.selecciona(0, static_cast<std::int32_t>(v.caja.texto().size()));
        v.caja.ponColorSeleccion(0);
        QCoreApplication::processEvents();
        estado.ResumeTiming();
        v.norvik.control().ColoreaTodo();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(colorearTodo)->Unit(benchmark::kMillisecond);

/// A program of a million characters, all aids on.
std::u16string unMillon() {
    std::u16string texto;
    while (texto.size() < 1'000'000) texto += u"x = f(a, 12) + b[3]; /* c */\r\n";
    return texto;
}

/// Keys of several kinds. What other threads bring back comes in the pauses between them, of which the
/// longest turn is told, as is the key that one in a hundred is slower than.
void teclearEnUnMillonConAyudas(benchmark::State& estado) {
    Ventana v;
    v.norvik.control().ponAyudas(todasLasAyudas());
    v.caja.ponTexto(unMillon());
    struct Tecla {
        Qt::Key tecla;
        const char* texto;
    };
    constexpr std::array teclas = {Tecla{Qt::Key_A, "a"},       Tecla{Qt::Key_ParenLeft, "("},
                                   Tecla{Qt::Key_Right, ""},    Tecla{Qt::Key_Down, ""},
                                   Tecla{Qt::Key_Return, "\r"}, Tecla{Qt::Key_Backspace, "\b"}};
    std::mt19937 azar(1);
    std::vector<double> tardanzas;
    double vueltaMasLarga = 0;
    const auto mide = [](const auto& orden) {
        QElapsedTimer reloj;
        reloj.start();
        orden();
        return static_cast<double>(reloj.nsecsElapsed()) / 1e6;
    };
    for ([[maybe_unused]] auto vuelta : estado) {
        const Tecla& t = teclas[azar() % teclas.size()];
        tardanzas.push_back(mide([&] { v.pulsa(t.tecla, QLatin1String(t.texto)); }));
        estado.PauseTiming();
        if (tardanzas.size() % 100 == 0)
            v.caja.selecciona(v.caja.inicioDeLinea(static_cast<std::int32_t>(azar() % 30'000)), 0);
        QElapsedTimer pausa;
        for (pausa.start(); pausa.elapsed() < 60; QThread::msleep(1))
            vueltaMasLarga = std::max(vueltaMasLarga, mide([] { QCoreApplication::processEvents(); }));
        estado.ResumeTiming();
    }
    std::ranges::sort(tardanzas);
    estado.counters["p99_ms"] = tardanzas[tardanzas.size() * 99 / 100];
    estado.counters["pausa_ms"] = vueltaMasLarga;
}
BENCHMARK(teclearEnUnMillonConAyudas)->Unit(benchmark::kMillisecond)->Iterations(600);

/// A character in the middle of a text that is all one line, of so many characters.
void teclearEnUnaLinea(benchmark::State& estado) {
    Ventana v;
    v.norvik.control().ponAyudas(todasLasAyudas());
    std::u16string texto = unMillon();
    std::ranges::replace(texto, u'\r', u' ');
    std::ranges::replace(texto, u'\n', u' ');
    texto.resize(static_cast<std::size_t>(estado.range(0)));
    v.caja.ponTexto(texto);
    v.caja.selecciona(static_cast<std::int32_t>(texto.size() / 2), 0);
    QCoreApplication::processEvents();
    for ([[maybe_unused]] auto vuelta : estado) v.pulsa(Qt::Key_A, QStringLiteral("a"));
}
BENCHMARK(teclearEnUnaLinea)
    ->Unit(benchmark::kMillisecond)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(10);

} // namespace
} // namespace norvik::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QApplication aplicacion(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
