// SPDX-License-Identifier: MIT

// Times the language window while a person types in the specification and in the text: from the end of the
// pause after a key to all panels shown and painted, and how long the window's thread is held in one turn.
// The window is drawn in memory.
#include "lenguaje.hpp"

#include "dialogos.hpp"
#include "lenguaje/ventanaLenguaje.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <optional>
#include <vector>

namespace norvik::bench {
namespace {

class SinDialogos final : public taller::Dialogos {
public:
    Destino pregunta(const QString&, const QString&, const QString&) override { return Destino::Descartar; }
    std::optional<QString> eligeParaAbrir(const QString&, const QString&) override { return {}; }
    std::optional<QString> eligeParaGuardar(const QString&, const QString&, const QString&,
                                            const QString&) override {
        return {};
    }
    taller::Choque preguntaChoque(const QString&) override { return taller::Choque::Cancelar; }
    std::optional<QString> pideNombre(const QString&, const QString&,
                                      const std::function<QString(const QString&)>&) override {
        return {};
    }
};

/// What this thread has worked, whatever else the machine does.
double trabajo() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

double milisegundos(const QElapsedTimer& reloj) {
    return static_cast<double>(reloj.nsecsElapsed()) / 1e6;
}

/// Both files open and all panels shown.
class Ventana {
public:
    Ventana(const char* especificacion, const char* texto) {
        ventana.resize(1400, 1000);
        ventana.trae();
        ventana.abre(QString::fromStdString(delRepositorio(especificacion).string()));
        ventana.abreTexto(QString::fromStdString(delRepositorio(texto).string()));
        espera();
    }
    /// One turn of the event loop after the other, until the panels are up to date; what the longest worked.
    double espera() {
        double mayor = 0;
        do {
            const double antes = trabajo();
            QCoreApplication::processEvents();
            mayor = std::max(mayor, trabajo() - antes);
            QThread::usleep(200);
        } while (!ventana.seguimiento().alDia());
        return mayor;
    }
    void pulsa(taller::EditorTexto& editor, Qt::Key tecla, const QString& texto) {
        for (const auto suceso : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent evento(suceso, tecla, Qt::NoModifier, texto);
            QCoreApplication::sendEvent(&editor.norvik().caja().ventana(), &evento);
        }
    }

    QTemporaryDir carpeta;
    SinDialogos dialogos;
    SistemaQt sistema;
    QSettings ajustes{carpeta.filePath("a.ini"), QSettings::IniFormat};
    taller::VentanaLenguaje ventana{sistema, dialogos, ajustes};
};

/// A blank typed and taken away in turns, in the middle: the pause of the window is not counted.
void tecla(benchmark::State& estado, Ventana& v, taller::EditorTexto& editor) {
    constexpr double pausa = 150;
    CajaTextoQt& caja = editor.norvik().caja();
    caja.selecciona(caja.inicioDeLinea(caja.numeroDeLineas() / 2), 0);
    std::vector<double> vueltas;
    bool escribe = true;
    for ([[maybe_unused]] auto vuelta : estado) {
        QElapsedTimer reloj;
        reloj.start();
        v.pulsa(editor, escribe ? Qt::Key_Space : Qt::Key_Backspace, QLatin1String(escribe ? " " : "\b"));
        escribe = !escribe;
        vueltas.push_back(v.espera());
        estado.SetIterationTime((milisegundos(reloj) - pausa) / 1e3);
    }
    std::ranges::sort(vueltas);
    estado.counters["vuelta_p50_ms"] = vueltas[vueltas.size() / 2];
    estado.counters["vuelta_max_ms"] = vueltas.back();
}

void enLaEspecificacion(benchmark::State& estado) {
    Ventana v("ejemplos/c/c.nvk", "ejemplos/c/bien/grande.c");
    tecla(estado, v, v.ventana.especificacion());
}
BENCHMARK(enLaEspecificacion)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(40);

void enElTexto(benchmark::State& estado) {
    Ventana v("ejemplos/c/c.nvk", "ejemplos/c/bien/grande.c");
    tecla(estado, v, v.ventana.texto());
}
BENCHMARK(enElTexto)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(40);

void enUnaEspecificacionPequena(benchmark::State& estado) {
    Ventana v("ejemplos/calculadora/calculadora.nvk", "ejemplos/calculadora/bien/interes.txt");
    tecla(estado, v, v.ventana.especificacion());
}
BENCHMARK(enUnaEspecificacionPequena)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(40);

} // namespace
} // namespace norvik::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QApplication aplicacion(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
