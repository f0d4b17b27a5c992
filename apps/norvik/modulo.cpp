// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "carpeta.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/texto.hpp"

namespace norvik::orden {

namespace {

namespace fs = std::filesystem;

void escribe(Norvik& control, const Modulo& orden, Salida& salida) {
    const gramatica& gramatica = control.Gramatica();
    const auto sumidero = [&](std::u16string_view pieza) { salida.escribe(aUtf8(pieza)); };
    switch (orden.lenguaje) {
    case LenguajeModulo::Vb:
        return gramatica.escribeModulo(orden.nombre, control.Lexico(), sumidero);
    case LenguajeModulo::Cpp:
        return gramatica.escribeModuloCpp(orden.nombre, control.Lexico(), sumidero);
    }
}

/// Writes the module and gives its path.
fs::path guarda(Norvik& control, const Modulo& orden) {
    const gramatica& gramatica = control.Gramatica();
    std::string nombre = aUtf8(orden.nombre);
    switch (orden.lenguaje) {
    case LenguajeModulo::Vb:
        gramatica.GuardaModuloGramatica(orden.nombre, control.Lexico(), orden.carpeta);
        nombre += ".bas";
        break;
    case LenguajeModulo::Cpp:
        gramatica.GuardaModuloCpp(orden.nombre, control.Lexico(), orden.carpeta);
        nombre += ".hpp";
        break;
    }
    return (orden.carpeta / nombre).lexically_normal();
}

void avisaDeControles(const pilaTokens& lexico, Salida& salida) {
    for (const expresionRegular* const token : lexico.tokensLenguaje())
        if (token->llevaControles())
            salida.avisa(
                u"aviso: " +
                mensaje({Codigo::CaracterDeControl, Gravedad::Aviso, {}, {token->nomToken, {}, {}, {}}}));
}

void escribeYDice(Norvik& control, const Modulo& orden, Salida& salida) {
    const std::string ruta = guarda(control, orden).native();
    salida.escribe(ruta + "\n");
    salida.vuelca(u". El módulo está escrito: «" + decodifica(ruta) + u"»");
}

} // namespace

int ejecuta(const Modulo& orden, Salida& salida) {
    compruebaCarpeta(orden.carpeta);
    Anfitrion anfitrion(salida);
    if (!anfitrion.compila(orden.especificacion, orden.metodo)) return anfitrion.estado();
    avisaDeControles(anfitrion.control.Lexico(), salida);
    if (orden.carpeta == flujo)
        escribe(anfitrion.control, orden, salida);
    else
        escribeYDice(anfitrion.control, orden, salida);
    return anfitrion.estado();
}

} // namespace norvik::orden
