// SPDX-License-Identifier: MIT

// Times what the control does while a person edits, on the C-like example's text near 30,000 characters and
// its box in memory: a typed character with its snapshot, leaving a line, colouring the whole against the
// recognition in it, and ten thousand characters typed and taken back, with the memory that they add.
#include "lenguaje.hpp"

#include "norvik/base/ficheros.hpp"

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace norvik::bench {
namespace {

constexpr int tecleados = 10000;

/// The text loaded and coloured, the caret in the middle of it.
class Editor : public Puesto {
public:
    Editor() {
        compila(leeTexto(delRepositorio("ejemplos/c/c.nvk")));
        control.Colorear(true);
        control.CargarFichero(delRepositorio("ejemplos/c/bien/grande.c"));
        medio = caja.inicioDeLinea(caja.numeroDeLineas() / 2);
        caja.selecciona(medio, 0);
    }
    /// A character as the box tells of its key.
    void teclea(int i) {
        std::int16_t codigo = 'A';
        std::int16_t shift = 0;
        caja.eventos.teclaAbajo(codigo, shift);
        caja.reemplazaSeleccion(i % 50 == 49 ? u"\r\n" : u"a");
        caja.eventos.teclaArriba(codigo, shift);
    }

    std::int32_t medio = 0;
};

std::size_t memoriaEnUso() {
    return mallinfo2().uordblks + mallinfo2().hblkhd;
}

void teclear(benchmark::State& estado) {
    Editor e;
    int i = 0;
    for ([[maybe_unused]] auto vuelta : estado) {
        e.teclea(0);
        if (++i % 1000 != 0) continue;
        estado.PauseTiming();
        e.control.CargarFichero(delRepositorio("ejemplos/c/bien/grande.c"));
        e.caja.selecciona(e.medio, 0);
        estado.ResumeTiming();
    }
}
BENCHMARK(teclear)->Unit(benchmark::kMicrosecond);

/// A character typed over another, which turns the line plain, and the caret's leaving, which colours it.
void dejarLinea(benchmark::State& estado) {
    Editor e;
    for ([[maybe_unused]] auto vuelta : estado) {
        e.caja.selecciona(e.medio, 1);
        e.teclea(0);
        e.caja.selecciona(0, 0);
    }
}
BENCHMARK(dejarLinea)->Unit(benchmark::kMicrosecond);

void reconocerTodo(benchmark::State& estado) {
    Editor e;
    for ([[maybe_unused]] auto vuelta : estado) e.control.Lexico().ReconoceTokens(e.caja.texto());
}
BENCHMARK(reconocerTodo)->Unit(benchmark::kMicrosecond);

void colorearTodo(benchmark::State& estado) {
    Editor e;
    for ([[maybe_unused]] auto vuelta : estado) e.control.ColoreaTodo();
}
BENCHMARK(colorearTodo)->Unit(benchmark::kMicrosecond);

/// MiB added by the text and its history.
void teclearMucho(benchmark::State& estado) {
    for ([[maybe_unused]] auto vuelta : estado) {
        Editor e;
        const std::size_t antes = memoriaEnUso();
        for (int i = 0; i < tecleados; ++i) e.teclea(0);
        estado.counters["MiB"] = static_cast<double>(memoriaEnUso() - antes) / (1 << 20);
    }
}
BENCHMARK(teclearMucho)->Unit(benchmark::kMillisecond)->Iterations(1);

void deshacerMucho(benchmark::State& estado) {
    for ([[maybe_unused]] auto vuelta : estado) {
        estado.PauseTiming();
        Editor e;
        const auto principio = e.control.Text();
        for (int i = 0; i < tecleados; ++i) e.teclea(i);
        estado.ResumeTiming();
        for (int i = 0; i < tecleados; ++i) e.control.Undo();
        if (e.control.Text() != principio) estado.SkipWithError("Undo gave another text");
    }
}
BENCHMARK(deshacerMucho)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace norvik::bench

BENCHMARK_MAIN();
