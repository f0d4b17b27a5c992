// SPDX-License-Identifier: MIT

// The control in a program without windows: a text box kept in memory, message boxes as lines.
//
//   ./consola LANGUAGE.nvk TEXT        prints the text's tree, or its wrong line and the error

#include <norvik/control/norvik.hpp>

#include <norvik/base/ficheros.hpp>
#include <norvik/base/texto.hpp>
#include <norvik/platform/cajaTexto.hpp>
#include <norvik/platform/memoria/sistemaMemoria.hpp>

#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    norvik::CajaTexto caja;
    norvik::SistemaMemoria sistema(
        [](const norvik::Mensaje& mensaje) { std::cerr << norvik::aUtf8(mensaje.texto) << '\n'; });
    norvik::Norvik control(caja, sistema);
    try {
        if (!control.CargaGramatica(norvik::leeTexto(argv[1])) || !control.GeneraCompilador()) {
            std::cerr << norvik::aUtf8(control.GetmensajeError()) << '\n';
            return 1;
        }
        control.CargarFichero(argv[2]);
        if (control.ConstruyeArbolSintactico()) {
            std::cout << norvik::aUtf8(control.GetArbolSintactico().toString());
            return 0;
        }
        std::cout << "línea " << control.LineaToken() << ": "
                  << norvik::aUtf8(control.ContenidoLinea(control.LineaToken())) << '\n'
                  << norvik::aUtf8(control.GetmensajeError()) << '\n';
    } catch (const norvik::ErrorNorvik& error) { // a file that cannot be read, a text that is too long …
        std::cerr << error.what() << '\n';
    }
    return 1;
}
