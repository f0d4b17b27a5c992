// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "coloreado.hpp"
#include "memoria.hpp"

#include "norvik/base/codificacion.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"

namespace norvik::orden {

namespace {

std::string textoSinColor(std::string texto) {
    std::erase(texto, '\r');
    if (!texto.empty()) texto += '\n';
    return texto;
}

std::string escribeTexto(const CajaTexto& caja, const Colorea& orden, const Salida& salida) {
    switch (orden.formato) {
    case FormatoColor::Terminal:
        return salida.conColor() ? ansiDe(caja) : textoSinColor(aUtf8(caja.texto()));
    case FormatoColor::Ansi:
        return ansiDe(caja);
    case FormatoColor::Html:
        return htmlDe(caja, decodifica(orden.texto.filename().native()));
    }
    return {};
}

} // namespace

int ejecuta(const Colorea& orden, Salida& salida) {
    const std::u16string texto = leeTextoDe(orden.texto);
    pideMemoria(texto.size());
    Anfitrion anfitrion(salida);
    if (!anfitrion.cargaLenguaje(orden.lenguaje, orden.metodo)) return anfitrion.estado();
    anfitrion.control.Text(texto);
    anfitrion.control.Colorear(true);
    anfitrion.control.ColoreaTodo();
    const std::string coloreado = escribeTexto(anfitrion.caja, orden, salida);
    if (orden.formato == FormatoColor::Ansi || (orden.formato == FormatoColor::Terminal && salida.conColor()))
        salida.escribePintado(coloreado);
    else
        salida.escribe(coloreado);
    return anfitrion.estado();
}

} // namespace norvik::orden
