// SPDX-License-Identifier: MIT

// Times what a person waits for at design time: opening the grammar editor on a specification near 30,000
// characters, and the report of the C-like example, from the command to the window drawn (in memory).
#include "lenguaje.hpp"

#include "norvik/base/ficheros.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/tools/codigoGramatica.hpp"

#include <QAction>
#include <QApplication>

#include <benchmark/benchmark.h>

namespace norvik::bench {
namespace {

/// Draws modal windows and closes them.
class SistemaQueCierra : public SistemaQt {
public:
    void muestraModal(QWidget& ventana) override {
        ventana.show();
        QApplication::processEvents();
        ++ventanas;
        ventana.close();
    }

    int ventanas = 0;
};

std::u16string especificacion() {
    return leeTexto(delRepositorio("ejemplos/c/c.nvk"));
}

void abrirEditor(benchmark::State& estado) {
    constexpr std::size_t largo = 30000;
    std::u16string texto;
    while (texto.size() < largo) texto += especificacion() + u"\r\n";
    texto.resize(texto.rfind(u"\r\n", largo));
    SistemaQueCierra sistema;
    for ([[maybe_unused]] auto vuelta : estado) {
        ranurasDisenio().especificacion = texto;
        CodigoGramatica editor(sistema);
        editor.carga();
        editor.show();
        QApplication::processEvents();
        if (editor.Norvik1().caja().colores().size() < 100) estado.SkipWithError("the text is not coloured");
    }
    estado.counters["caracteres"] = static_cast<double>(texto.size());
}
BENCHMARK(abrirEditor)->Unit(benchmark::kMillisecond);

void verInforme(benchmark::State& estado) {
    ranurasDisenio().especificacion = especificacion();
    SistemaQueCierra sistema;
    CodigoGramatica editor(sistema);
    editor.carga();
    editor.show();
    int vueltas = 0;
    for ([[maybe_unused]] auto vuelta : estado) {
        editor.findChild<QAction*>(QStringLiteral("VerInforme"))->trigger();
        ++vueltas;
    }
    if (sistema.ventanas != vueltas) estado.SkipWithError("no report was shown");
}
BENCHMARK(verInforme)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace norvik::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
