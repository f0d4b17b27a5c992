#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "dibujo.hpp"
#include "json.hpp"

namespace norvik::orden {

namespace {

std::string escribeArbol(const Arbol& raiz, FormatoArbol formato) {
    switch (formato) {
    case FormatoArbol::Dibujo:
        return dibuja(raiz);
    case FormatoArbol::Json:
        return jsonDeArbol(raiz);
    case FormatoArbol::Lineas:
        return lineasDeArbol(raiz);
    }
    return {};
}

} // namespace

int ejecuta(const Analiza& orden, Salida& salida) {
    const std::u16string texto = leeTextoDe(orden.texto);
    Anfitrion anfitrion(salida);
    if (!anfitrion.cargaLenguaje(orden.lenguaje)) return anfitrion.estado();
    anfitrion.control.Text(texto);
    if (anfitrion.control.ConstruyeArbolSintactico())
        salida.escribe(escribeArbol(anfitrion.control.GetArbolSintactico(), orden.formato));
    else
        anfitrion.cuentaError(anfitrion.control.GetmensajeError(), texto);
    return anfitrion.estado();
}

} // namespace norvik::orden
