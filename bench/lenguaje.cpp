// SPDX-License-Identifier: MIT

#include "lenguaje.hpp"

#include "norvik/base/texto.hpp"

#include <cstdlib>
#include <iostream>

namespace norvik::bench {

std::filesystem::path delRepositorio(std::string_view ruta) {
    return std::filesystem::path(NORVIK_SOURCE_DIR) / ruta;
}

Puesto::Puesto()
    : sistema([](const Mensaje& mensaje) { std::cerr << aUtf8(mensaje.texto) << '\n'; }),
      control(caja, sistema) {}

void Puesto::compila(std::u16string_view especificacion) {
    if (control.CargaGramatica(especificacion) && control.GeneraCompilador()) return;
    std::cerr << aUtf8(control.GetmensajeError()) << '\n';
    std::exit(1);
}

} // namespace norvik::bench
