#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "carpeta.hpp"

#include "norvik/base/texto.hpp"

namespace norvik::orden {

namespace {

namespace fs = std::filesystem;

std::u16string textoDe(Norvik& control, const Modulo& orden) {
    const gramatica& gramatica = control.Gramatica();
    switch (orden.lenguaje) {
    case LenguajeModulo::Vb:
        return gramatica.textoModulo(orden.nombre, control.Lexico());
    case LenguajeModulo::Cpp:
        return gramatica.textoModuloCpp(orden.nombre, control.Lexico());
    }
    return {};
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

} // namespace

int ejecuta(const Modulo& orden, Salida& salida) {
    compruebaCarpeta(orden.carpeta);
    Anfitrion anfitrion(salida);
    if (!anfitrion.compila(leeTextoDe(orden.especificacion))) return anfitrion.estado();
    if (orden.carpeta == flujo)
        salida.escribe(aUtf8(textoDe(anfitrion.control, orden)));
    else
        salida.escribe(guarda(anfitrion.control, orden).native() + "\n");
    return anfitrion.estado();
}

} // namespace norvik::orden
