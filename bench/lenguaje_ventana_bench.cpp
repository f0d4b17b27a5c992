// SPDX-License-Identifier: MIT

// Times the language window while a person types in the specification and in the text: from the end of the
// pause after a word to all panels shown and painted, and how long the window's thread is held by a key, by
// the clock. Then the film's jump in its panel, and a drawn automaton. The window is drawn in memory, as
// large as a usual screen, and its panels are one beside the other: a tab behind others is not seen.
#include "lenguaje.hpp"

#include "dialogos.hpp"
#include "lenguaje/ventanaLenguaje.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <random>
#include <string_view>
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

double milisegundos(const QElapsedTimer& reloj) {
    return static_cast<double>(reloj.nsecsElapsed()) / 1e6;
}

constexpr int niveles = 17; ///< of the operators of a language that has some sixty states

struct Documentos {
    const char* especificacion;
    const char* texto;
};
constexpr Documentos deC{"ejemplos/c/c.nvk", "ejemplos/c/bien/grande.c"};
constexpr Documentos pequenos{"ejemplos/calculadora/calculadora.nvk",
                              "ejemplos/calculadora/bien/interes.txt"};

const QStringList deLaEspecificacion{QStringLiteral("Problemas"), QStringLiteral("Árbol"),
                                     QStringLiteral("Conjuntos"), QStringLiteral("Tabla")};

/// Both files open, and these panels to be seen.
class Ventana {
public:
    explicit Ventana(const Documentos& documentos, const QStringList& paneles = deLaEspecificacion) {
        ventana.resize(1920, 1080);
        ventana.trae();
        ventana.abre(QString::fromStdString(delRepositorio(documentos.especificacion).string()));
        ventana.abreTexto(QString::fromStdString(delRepositorio(documentos.texto).string()));
        int numero = 0;
        for (auto* const panel : ventana.findChildren<taller::Panel*>()) {
            panel->setVisible(paneles.contains(panel->titulo()));
            if (panel->isHidden()) continue;
            const bool abajo = numero++ % 2 == 0;
            ventana.addDockWidget(abajo ? Qt::BottomDockWidgetArea : Qt::RightDockWidgetArea, panel);
        }
        espera();
    }
    /// One turn of the event loop; what it held the thread for is of the key before it.
    void vuelta() {
        QElapsedTimer reloj;
        reloj.start();
        QCoreApplication::processEvents();
        if (!teclas.empty()) teclas.back() = std::max(teclas.back(), milisegundos(reloj));
        QThread::usleep(200);
    }
    /// Until the panels are up to date and painted, repairs and pictures apart.
    void espera() {
        do vuelta();
        while (!ventana.seguimiento().alDia() || ventana.mostrando());
        vuelta();
    }
    void pulsa(taller::EditorTexto& editor, Qt::Key tecla, const QString& texto) {
        QElapsedTimer reloj;
        reloj.start();
        for (const auto suceso : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent evento(suceso, tecla, Qt::NoModifier, texto);
            QCoreApplication::sendEvent(&editor.norvik().caja().ventana(), &evento);
        }
        teclas.push_back(milisegundos(reloj));
        vuelta();
    }

    std::vector<double> teclas; ///< of each key the longest time that the thread was held, in ms

    QTemporaryDir carpeta;
    SinDialogos dialogos;
    SistemaQt sistema;
    QSettings ajustes{carpeta.filePath("a.ini"), QSettings::IniFormat};
    taller::VentanaLenguaje ventana{sistema, dialogos, ajustes};
};

/// Of these, sorted, the one that so many in a hundred are no greater than.
double porCien(std::vector<double>& tiempos, std::size_t cuantos) {
    std::ranges::sort(tiempos);
    return tiempos[(tiempos.size() - 1) * cuantos / 100];
}

/// A word is typed behind a place of the text, and taken away again; both are waited for. The time is that
/// from the end of the window's pause to the panels.
void palabra(benchmark::State& estado, const Documentos& documentos, bool enEspecificacion,
             std::u16string_view detras, const QString& letras) {
    constexpr double pausa = 150;
    Ventana v(documentos);
    taller::EditorTexto& editor = enEspecificacion ? v.ventana.especificacion() : v.ventana.texto();
    CajaTextoQt& caja = editor.norvik().caja();
    const std::size_t lugar = caja.texto().find(detras);
    if (lugar == std::u16string_view::npos) return estado.SkipWithError("the text is another one");
    caja.atiende([&] { caja.selecciona(static_cast<std::int32_t>(lugar + detras.size()), 0); });
    std::vector<double> tiempos;
    enum class Que : std::uint8_t { Escribe, Borra };
    const auto mide = [&](Que que) {
        QElapsedTimer reloj;
        for (const QChar letra : letras) {
            reloj.start();
            if (que == Que::Escribe)
                v.pulsa(editor, static_cast<Qt::Key>(letra.toUpper().unicode()), letra);
            else
                v.pulsa(editor, Qt::Key_Backspace, QStringLiteral("\b"));
        }
        v.espera();
        tiempos.push_back(milisegundos(reloj) - pausa);
    };
    v.teclas.clear();
    for ([[maybe_unused]] auto vuelta : estado) {
        mide(Que::Escribe);
        mide(Que::Borra);
        estado.SetIterationTime((tiempos.end()[-1] + tiempos.end()[-2]) / 2e3);
    }
    const auto lentas = std::ranges::count_if(v.teclas, [](double ms) { return ms > 16; });
    estado.counters["teclas"] = static_cast<double>(v.teclas.size());
    estado.counters["mas_de_16ms_%"] =
        100 * static_cast<double>(lentas) / static_cast<double>(v.teclas.size());
    estado.counters["vuelta_p99_ms"] = porCien(v.teclas, 99);
    estado.counters["vuelta_max_ms"] = v.teclas.back();
    estado.counters["vistos_p50_ms"] = porCien(tiempos, 50);
    estado.counters["vistos_p99_ms"] = porCien(tiempos, 99);
}

void reglaDeUnLenguajeGrande(benchmark::State& estado) {
    palabra(estado, deC, true, u"Argumentos -> Asignacion", QStringLiteral(" coma"));
}
BENCHMARK(reglaDeUnLenguajeGrande)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(100);

void textoDe30000Caracteres(benchmark::State& estado) {
    palabra(estado, deC, false, u";", QStringLiteral(" a = b;"));
}
BENCHMARK(textoDe30000Caracteres)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(100);

void reglaDeUnLenguajePequeno(benchmark::State& estado) {
    palabra(estado, pequenos, true, u"Signo -> menos Signo", QStringLiteral(" menos"));
}
BENCHMARK(reglaDeUnLenguajePequeno)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(100);

void textoPequeno(benchmark::State& estado) {
    palabra(estado, pequenos, false, u"capital := 1", QStringLiteral("234567"));
}
BENCHMARK(textoPequeno)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(100);

/// The film of the text goes anywhere, and the panel shows it.
void saltoDeLaPelicula(benchmark::State& estado) {
    Ventana v(deC, deLaEspecificacion + QStringList{QStringLiteral("Pasos"), QStringLiteral("Autómata"),
                                                    QStringLiteral("Diagramas")});
    taller::PanelPasos& panel = v.ventana.pasos();
    auto& paso = *panel.findChild<QSpinBox*>();
    while (panel.pelicula() == nullptr) v.vuelta();
    std::mt19937 azar(1);
    std::vector<double> tiempos;
    for ([[maybe_unused]] auto vuelta : estado) {
        QElapsedTimer reloj;
        reloj.start();
        paso.setValue(static_cast<int>(azar() % static_cast<unsigned>(paso.maximum())));
        QCoreApplication::processEvents();
        tiempos.push_back(milisegundos(reloj));
        estado.SetIterationTime(tiempos.back() / 1e3);
    }
    estado.counters["p99_ms"] = porCien(tiempos, 99);
    estado.counters["max_ms"] = tiempos.back();
}
BENCHMARK(saltoDeLaPelicula)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(200);

/// From a language of sixty states to its drawing; each time another one.
void dibujoDe60Estados(benchmark::State& estado) {
    Ventana v(pequenos, {QStringLiteral("Problemas"), QStringLiteral("Autómata")});
    int numero = 0;
    for ([[maybe_unused]] auto vuelta : estado) {
        QString especificacion =
            QStringLiteral("'% metodo: lalr\r\nToken a = \"a\";\r\nToken n%1 = \"n\";\r\n");
        especificacion = especificacion.arg(++numero);
        for (int i = 0; i < niveles; ++i) especificacion += QStringLiteral("Token o%1 = \"o%1\";\r\n").arg(i);
        for (int i = 0; i < niveles; ++i)
            especificacion += QStringLiteral("E%1 -> E%1 o%1 E%2 | E%2;\r\n").arg(i).arg(i + 1);
        especificacion += QStringLiteral("E%1 -> a E0 a | n%2;\r\n").arg(niveles).arg(numero);
        QElapsedTimer reloj;
        reloj.start();
        v.ventana.empieza(especificacion.toStdU16String(), u"n");
        v.espera();
        const auto dibujado = [&] { return v.ventana.automata().dibujo().estado(0) != nullptr; };
        while (!dibujado() && milisegundos(reloj) < 20'000) v.vuelta();
        v.vuelta();
        estado.SetIterationTime(milisegundos(reloj) / 1e3);
        estado.counters["estados"] = v.ventana.automata().estados().count();
    }
}
BENCHMARK(dibujoDe60Estados)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

} // namespace
} // namespace norvik::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QApplication aplicacion(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
