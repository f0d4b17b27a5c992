// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "carpeta.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/contrasteClasico.hpp"

namespace norvik::orden {

namespace {

// Where the classic method left it.
void avisaDeLaVerdad(const gramatica& gramatica, Salida& salida) {
    if (gramatica.metodo() != Metodo::Clasico) return;
    salida.vuelca();
    for (const Diagnostico& diagnostico : contrastaClasico(gramatica.valores()))
        salida.avisa(u"aviso: " + visible(mensaje(diagnostico)));
}

} // namespace

int ejecuta(const Informe& orden, Salida& salida) {
    compruebaCarpeta(orden.carpeta);
    Anfitrion anfitrion(salida);
    if (!anfitrion.compila(orden.especificacion, orden.metodo)) return anfitrion.estado();
    const gramatica& gramatica = anfitrion.control.Gramatica();
    const std::u16string problemas = gramatica.textoProblemas();
    if (orden.carpeta == flujo) {
        gramatica.escribeInforme([&](std::u16string_view pieza) { salida.escribe(aUtf8(pieza)); });
        salida.vuelca(); // if that fails, the failure is all there is to tell
        salida.avisa(problemas);
    } else {
        gramatica.GuardaInforme(orden.carpeta);
        salida.escribe(aUtf8(problemas));
        if (problemas.back() != u'\n') salida.escribe("\n");
    }
    avisaDeLaVerdad(gramatica, salida);
    return anfitrion.estado();
}

} // namespace norvik::orden
