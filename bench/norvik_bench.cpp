// SPDX-License-Identifier: MIT

// Times the stages of a language and of a parse, each by itself and in process.
//
//   norvik-bench [--lenguaje SPECIFICATION] [--texto TEXT] [options of Google Benchmark]
//
// Without them: the C-like example and its text near 30,000 characters. `analisis` is the whole of a parse:
// `lectura` (in it `reconocimiento`), the driver, and `arbol`. `pelicula` makes the film of the parse,
// `salto` goes to one of its moments and looks at all of the stack.

#include "lenguaje.hpp"

#include "norvik/base/ficheros.hpp"
#include "norvik/parser/arbolSintactico.hpp"
#include "norvik/parser/constructorArbol.hpp"
#include "norvik/parser/lectorTokens.hpp"
#include "norvik/parser/traza.hpp"
#include "norvik/spec/compiladorEspecificacion.hpp"
#include "norvik/spec/filma.hpp"
#include "norvik/spec/lectorModulo.hpp"
#include "norvik/spec/lenguaje.hpp"
#include "norvik/spec/lenguajeEspecificacion.hpp"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <iostream>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik::bench {
namespace {

using Accion = std::function<void()>;

/// Times an action by the processor's clock; what prepares it is not counted.
void etapa(const char* nombre, Accion accion, Accion prepara = {}) {
    const auto mide = [accion = std::move(accion), prepara = std::move(prepara)](benchmark::State& estado) {
        for ([[maybe_unused]] auto vuelta : estado) {
            if (prepara) prepara();
            const std::clock_t principio = std::clock();
            accion();
            estado.SetIterationTime(static_cast<double>(std::clock() - principio) / CLOCKS_PER_SEC);
        }
    };
    benchmark::RegisterBenchmark(nombre, mide)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

struct Materia {
    Puesto puesto;         ///< holds the language and the text
    Puesto especificacion; ///< holds the specification language, and the tree of the specification
    Puesto sobra;          ///< for what stages write
    std::u16string fuente; ///< the specification
    std::u16string modulo;
    Traza traza; ///< of the text's parse
};

/// The trace that a tree was built from: its nodes in post-order.
void reconstruyeTraza(const Arbol& raiz, Traza& traza) {
    struct Pendiente {
        const Arbol* nodo;
        bool hijosHechos;
    };
    std::vector<Pendiente> pendientes{{&raiz, false}};
    while (!pendientes.empty()) {
        const auto [nodo, hijosHechos] = pendientes.back();
        pendientes.pop_back();
        if (nodo->GetNumRegla() < 0) {
            traza.registraDesplazamiento(nodo->GetLexema(), nodo->GetLinea(), nodo->GetColumna());
        } else if (hijosHechos) {
            traza.registraReduccion(nodo->GetNumRegla());
        } else {
            pendientes.push_back({nodo, true});
            for (std::int16_t i = nodo->GetNumHijos(); i > 0; --i)
                pendientes.push_back({nodo->GetHijo(i), false});
        }
    }
}

void prepara(Materia& m, const std::filesystem::path& lenguaje, const std::filesystem::path& texto) {
    m.fuente = leeTexto(lenguaje);
    m.puesto.control.Colorear(true);
    m.puesto.compila(m.fuente);
    m.modulo = m.puesto.control.Gramatica().textoModulo(u"Medida", m.puesto.control.Lexico());
    m.puesto.caja.ponTexto(leeTexto(texto));
    if (!m.puesto.control.ConstruyeArbolSintactico()) std::exit(1);
    reconstruyeTraza(m.puesto.control.GetArbolSintactico(), m.traza);
    InstalaLenguajeEspecificacion(m.especificacion.control.Gramatica(), m.especificacion.control.Lexico(),
                                  false);
    m.especificacion.caja.ponTexto(m.fuente);
    if (!m.especificacion.control.ConstruyeArbolSintactico()) std::exit(1);
}

void etapasDelLenguaje(Materia& m) {
    static gramatica paso;
    const auto reglas = [&m] {
        const gramatica& origen = m.puesto.control.Gramatica();
        paso.inicializaGramatica();
        for (std::int16_t r = 1; r <= origen.getNumReglas(); r++)
            paso.SetRegla(origen.GetLeftRegla(r), origen.GetRightRegla(r));
    };
    const auto hastaConjuntos = [reglas] { reglas(), paso.creaConjuntos(); };
    etapa("especificacion", [&m] { m.sobra.control.CargaGramatica(m.fuente); });
    etapa("expansion", [&m] {
        pilaTokens lexico;
        gramatica g;
        CompilaArbolEspecificacion(m.especificacion.control.GetArbolSintactico(), g, lexico, m.sobra.sistema);
    });
    etapa(
        "conjuntos", [] { paso.creaConjuntos(); }, reglas);
    etapa(
        "automata", [] { paso.creaAutomata(); }, hastaConjuntos);
    etapa(
        "tabla", [] { paso.creaTablaSLR(); }, [hastaConjuntos] { hastaConjuntos(), paso.creaAutomata(); });
    etapa("compila", [&m] { m.sobra.compila(m.fuente); });
    etapa("modulo", [&m] {
        m.puesto.control.Gramatica().escribeModulo(
            u"Medida", m.puesto.control.Lexico(),
            [](std::u16string_view pieza) { benchmark::DoNotOptimize(pieza.data()); });
    });
    etapa("carga_modulo", [&m] {
        m.sobra.control.BorraLenguaje();
        m.sobra.control.Gramatica().inicializaGramatica();
        CargaModulo(m.modulo, m.sobra.control);
    });
}

void etapasDelTexto(Materia& m) {
    pilaTokens& lexico = m.puesto.control.Lexico();
    static LectorTokens lector(lexico, m.puesto.caja);
    static ArbolSintactico arbol;
    static Traza copia;
    etapa("reconocimiento", [&lexico, &m] { lexico.ReconoceTokens(m.puesto.caja.texto()); });
    etapa("lectura", [&m] {
        lector.inicializa(m.puesto.caja);
        do lector.lee(m.puesto.caja);
        while (lector.leido().definicion >= 0);
    });
    etapa(
        "arbol", [&m] { construyeArbol(arbol, copia, m.puesto.control.Gramatica()); },
        [&m] { arbol.reinicia(), copia = m.traza; });
    etapa("analisis", [&m] { m.puesto.control.ConstruyeArbolSintactico(); });
    etapa("coloreado", [&m] { m.puesto.control.ColoreaTodo(); });
}

void etapasDeLaPelicula(Materia& m) {
    static const Lenguaje lenguaje = *Lenguaje::compila(m.fuente).lenguaje;
    static const std::u16string texto(m.puesto.caja.texto());
    static const auto filmada = filma(lenguaje, texto);
    static std::mt19937 azar(1);
    etapa("pelicula", [] { benchmark::DoNotOptimize(filma(lenguaje, texto)); });
    etapa("salto", [] {
        const auto& pelicula = std::get<Pelicula>(filmada);
        const std::size_t momento = azar() % (pelicula.ultimo() + 1);
        for (const auto& [estado, nodo] : pelicula.pila(momento))
            if (nodo != 0) benchmark::DoNotOptimize(pelicula.simbolo(nodo));
        benchmark::DoNotOptimize(pelicula.accion(momento));
        benchmark::DoNotOptimize(pelicula.siguiente(momento));
    });
}

/// Takes an option of ours and its value out of the arguments.
std::filesystem::path opcion(std::vector<char*>& argumentos, std::string_view nombre,
                             std::filesystem::path omision) {
    for (std::size_t i = 1; i + 1 < argumentos.size(); i++) {
        if (argumentos[i] != nombre) continue;
        omision = argumentos[i + 1];
        const auto aqui = argumentos.begin() + static_cast<std::ptrdiff_t>(i);
        argumentos.erase(aqui, aqui + 2);
        break;
    }
    return omision;
}

} // namespace
} // namespace norvik::bench

int main(int argc, char** argv) {
    using namespace norvik::bench;
    std::vector<char*> argumentos(argv, argv + argc);
    const auto lenguaje = opcion(argumentos, "--lenguaje", delRepositorio("ejemplos/c/c.nvk"));
    const auto texto = opcion(argumentos, "--texto", delRepositorio("ejemplos/c/bien/grande.c"));
    int cuantos = static_cast<int>(argumentos.size());
    benchmark::Initialize(&cuantos, argumentos.data());
    if (benchmark::ReportUnrecognizedArguments(cuantos, argumentos.data())) return 2;
    Materia materia;
    prepara(materia, lenguaje, texto);
    etapasDelLenguaje(materia);
    etapasDelTexto(materia);
    etapasDeLaPelicula(materia);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
