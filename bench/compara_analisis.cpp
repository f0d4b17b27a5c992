// SPDX-License-Identifier: MIT

// Parses texts with the control and with the flex + bison parser of the same language, in turns and in one
// process, and prints the median of the processor's time for each. Before that it proves that both build the
// same tree.
//
//   compara-analisis json|c SPECIFICATION ROUNDS TEXT...
//
// Both times hold everything from the text in memory to the tree, the freeing of the previous tree included.

#include "lenguaje.hpp"
#include <arbol.h>

#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using norvik::Arbol;
using AnalizaPar = Nodo* (*)(const char*, std::size_t);

constexpr int seguidas = 5; // runs in a row for each measure

bool mismaHoja(const Arbol& nuestro, const Nodo& suyo) {
    return norvik::aWindows1252(nuestro.GetLexema()) == std::string(suyo.lexema) &&
           nuestro.GetLinea() == suyo.linea && nuestro.GetColumna() == suyo.columna;
}

bool mismoArbol(const Arbol& nuestro, const Nodo& suyo) {
    std::vector<std::pair<const Arbol*, const Nodo*>> pendientes{{&nuestro, &suyo}};
    while (!pendientes.empty()) {
        const auto [a, b] = pendientes.back();
        pendientes.pop_back();
        if (b->regla == 0 ? !mismaHoja(*a, *b) : a->GetNumRegla() != b->regla) return false;
        if (a->GetNumHijos() != b->numHijos) return false;
        for (int i = 0; i < b->numHijos; i++)
            pendientes.emplace_back(a->GetHijo(static_cast<std::int16_t>(i + 1)), b->hijos[i]);
    }
    return true;
}

/// Time of the processor spent so far, in microseconds.
double procesador() {
    timespec tiempo{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &tiempo);
    return static_cast<double>(tiempo.tv_sec) * 1e6 + static_cast<double>(tiempo.tv_nsec) / 1e3;
}

template <class Accion>
double microsegundos(Accion accion) {
    const double principio = procesador();
    for (int i = 0; i < seguidas; i++) accion();
    return (procesador() - principio) / seguidas;
}

double mediana(std::vector<double>& tiempos) {
    std::sort(tiempos.begin(), tiempos.end());
    return tiempos[tiempos.size() / 2];
}

[[noreturn]] void acaba(const std::string& motivo, int estado) {
    std::cerr << "compara-analisis: " << motivo << '\n';
    std::exit(estado);
}

void compara(norvik::bench::Puesto& puesto, AnalizaPar analizaPar, int vueltas, const char* fichero) {
    const std::u16string texto = norvik::leeTexto(fichero);
    const std::optional<std::string> bytes = norvik::aWindows1252(texto);
    if (!bytes) acaba(std::string(fichero) + ": not a text of single bytes", 2);
    puesto.caja.ponTexto(texto);
    const auto nuestro = [&] { return puesto.control.ConstruyeArbolSintactico(); };
    const auto suyo = [&] { return analizaPar(bytes->data(), bytes->size()); };
    const Nodo* raiz = suyo();
    if (!nuestro() || raiz == nullptr || !mismoArbol(puesto.control.GetArbolSintactico(), *raiz))
        acaba(std::string(fichero) + ": the two parsers do not agree", 1);

    std::vector<double> nuestros;
    std::vector<double> suyos;
    for (int i = 0; i < vueltas; i++) {
        nuestros.push_back(microsegundos(nuestro));
        suyos.push_back(microsegundos(suyo));
    }
    const double a = mediana(nuestros);
    const double b = mediana(suyos);
    std::printf("%zu %.1f %.1f %.2f\n", texto.size(), a, b, a / b);
}

} // namespace

int main(int argc, char** argv) {
    const std::string_view cual = argc > 1 ? argv[1] : "";
    if (argc < 5 || (cual != "json" && cual != "c") || std::atoi(argv[3]) < 1)
        acaba("json|c SPECIFICATION ROUNDS TEXT...", 2);
    norvik::bench::Puesto puesto;
    puesto.compila(norvik::leeTexto(argv[2]));
    for (int i = 4; i < argc; i++)
        compara(puesto, cual == "c" ? c_analiza : json_analiza, std::atoi(argv[3]), argv[i]);
    arbol_libera();
    return 0;
}
