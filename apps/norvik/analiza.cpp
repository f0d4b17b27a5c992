// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "dibujo.hpp"
#include "json.hpp"
#include "memoria.hpp"

namespace norvik::orden {

namespace {

void escribeArbol(const Arbol& raiz, FormatoArbol formato, Salida& salida) {
    switch (formato) {
    case FormatoArbol::Dibujo:
        return dibuja(raiz, [&](std::string_view linea) { salida.escribe(linea); });
    case FormatoArbol::Json:
        return escribeJson(raiz, salida);
    case FormatoArbol::Lineas:
        return escribeLineas(raiz, salida);
    }
}

} // namespace

int ejecuta(const Analiza& orden, Salida& salida) {
    const std::u16string texto = leeTextoDe(orden.texto);
    pideMemoria(texto.size());
    Anfitrion anfitrion(salida);
    if (!anfitrion.cargaLenguaje(orden.lenguaje, orden.metodo)) return anfitrion.estado();
    anfitrion.control.Text(texto);
    Norvik& control = anfitrion.control;
    if (control.ConstruyeArbolSintactico()) {
        escribeArbol(control.GetArbolSintactico(), orden.formato, salida);
        return anfitrion.estado();
    }
    const std::vector<Diagnostico> errores = anfitrion.erroresDe(texto);
    if (orden.formato != FormatoArbol::Dibujo) escribeJson(errores, nombreDeFichero(orden.texto), salida);
    anfitrion.cuentaErrores(control.GetmensajeError(), errores, orden.texto, texto);
    return anfitrion.estado();
}

} // namespace norvik::orden
