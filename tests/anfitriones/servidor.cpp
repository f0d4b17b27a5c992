// SPDX-License-Identifier: MIT

// A server with several threads and languages: each line of its input is a request, the name of a language
// and a text; the answers come in the order of the requests. The threads share the languages.
//
//   ./servidor suma=suma.nvk json=json.nvk        "suma 1 + 2" is answered with "1: bien, 7 nodos"

#include <norvik/spec/lenguaje.hpp>

#include <norvik/base/texto.hpp>

#include <atomic>
#include <iostream>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace {

using Lenguajes = std::map<std::string, norvik::Lenguaje>;

std::string responde(const Lenguajes& lenguajes, std::string_view peticion) {
    const auto blanco = std::min(peticion.find(' '), peticion.size());
    const auto lenguaje = lenguajes.find(std::string(peticion.substr(0, blanco)));
    if (lenguaje == lenguajes.end()) return "no conozco ese lenguaje";
    const auto analisis = analiza(lenguaje->second, peticion.substr(std::min(blanco + 1, peticion.size())));
    if (analisis) return "bien, " + std::to_string(analisis.arbol.numNodos()) + " nodos";
    const auto& error = analisis.diagnosticos.front();
    return "columna " + std::to_string(error.rango.inicio.columna) + ": " + norvik::aUtf8(mensaje(error));
}

} // namespace

int main(int argc, char** argv) {
    Lenguajes lenguajes;
    for (int i = 1; i < argc; ++i) {
        const std::string argumento = argv[i];
        const auto igual = argumento.find('=');
        const auto compilacion = norvik::Lenguaje::deFichero(argumento.substr(igual + 1));
        if (!compilacion) return 2;
        lenguajes.emplace(argumento.substr(0, igual), *compilacion.lenguaje);
    }
    std::vector<std::string> peticiones;
    for (std::string linea; std::getline(std::cin, linea);) peticiones.push_back(linea);

    std::vector<std::string> respuestas(peticiones.size());
    std::atomic<std::size_t> siguiente = 0;
    {
        std::vector<std::jthread> hilos;
        for (int i = 0; i < 4; ++i)
            hilos.emplace_back([&] {
                for (std::size_t p = siguiente++; p < peticiones.size(); p = siguiente++)
                    respuestas[p] = responde(lenguajes, peticiones[p]);
            });
    }
    for (std::size_t p = 0; p < respuestas.size(); ++p) std::cout << p + 1 << ": " << respuestas[p] << '\n';
}
