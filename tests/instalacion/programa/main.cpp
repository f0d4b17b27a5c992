// SPDX-License-Identifier: MIT

// A host program: loads a language, from a specification or with the module made for it, and shows what the
// control then holds and answers, and the language as a value. Both ways must show the same.

#include <norvik/base/ficheros.hpp>
#include <norvik/base/texto.hpp>
#include <norvik/control/norvik.hpp>
#include <norvik/platform/cajaTexto.hpp>
#include <norvik/platform/memoria/sistemaMemoria.hpp>
#include <norvik/spec/lenguaje.hpp>

#ifdef MODULO
#include MODULO
#endif

#include <iostream>

namespace {

void muestraTabla(const norvik::gramatica& gramatica) {
    for (std::int16_t fila = 0; fila < gramatica.GetDimensionFilasSLR(); ++fila) {
        for (std::int16_t columna = 0; columna < gramatica.GetDimensionColumnasSLR(); ++columna)
            std::cout << gramatica.GetElementoTablaSLR(fila, columna) << ' ';
        std::cout << '\n';
    }
}

void muestraValor(const norvik::Lenguaje& lenguaje, std::u16string_view texto) {
    const norvik::Vocabulario& vocabulario = lenguaje.vocabulario();
    std::cout << vocabulario.tokens.size() << ' ' << vocabulario.variables.size() << ' '
              << vocabulario.reglas.size() << '\n';
    const norvik::Analisis analisis = norvik::analiza(lenguaje, texto);
    for (const auto& error : analisis.diagnosticos) std::cout << norvik::aUtf8(mensaje(error)) << '\n';
    if (!analisis) return;
    std::cout << norvik::aUtf8(analisis.arbol.toString());
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    norvik::CajaTexto caja;
    norvik::SistemaMemoria sistema(
        [](const norvik::Mensaje& mensaje) { std::cerr << norvik::aUtf8(mensaje.texto) << '\n'; });
    norvik::Norvik control(caja, sistema);
#ifdef MODULO
    Ejemplo::CargaLenguaje(control);
    muestraValor(Ejemplo::lenguaje(), norvik::leeTexto(argv[2]));
#else
    muestraValor(norvik::Lenguaje::deFichero(argv[1]).lenguaje.value(), norvik::leeTexto(argv[2]));
    if (!control.CargaGramatica(norvik::leeTexto(argv[1])) || !control.GeneraCompilador()) return 1;
#endif
    muestraTabla(control.Gramatica());
    control.Text(norvik::leeTexto(argv[2]));
    if (control.ConstruyeArbolSintactico())
        std::cout << norvik::aUtf8(control.GetArbolSintactico().toString());
    else
        std::cout << norvik::aUtf8(control.GetmensajeError()) << '\n';
    return 0;
}
