// SPDX-License-Identifier: MIT

#include "muestraError.hpp"

#include "salida.hpp"

#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik::orden {

namespace {

struct Linea {
    std::u16string texto; ///< as a terminal can show it, each character in one place
    std::size_t desde = 0;
    std::size_t hasta = 0;
};

// The line of a range, with the part of the range that stands in it.
Linea lineaDe(const Rango& rango, std::u16string_view texto) {
    const auto inicio = static_cast<std::size_t>(rango.inicio.desplazamiento);
    const auto columna = static_cast<std::size_t>(rango.inicio.columna) - 1;
    const std::u16string_view resto = texto.substr(inicio - columna);
    Linea linea;
    linea.texto = visible(resto.substr(0, resto.find_first_of(u"\r\n")));
    std::replace(linea.texto.begin(), linea.texto.end(), u'\t',
                 u' '); // the caret has to stand under its place
    linea.desde = std::min(columna, linea.texto.size());
    const auto largo = static_cast<std::size_t>(rango.fin.desplazamiento) - inicio;
    linea.hasta = std::min(linea.desde + std::max<std::size_t>(largo, 1),
                           std::max(linea.texto.size(), linea.desde + 1));
    return linea;
}

// The fixed messages have line breaks and tabs of their own: here they take one line.
std::u16string enUnaLinea(std::u16string_view texto) {
    std::u16string linea;
    for (const char16_t c : texto) {
        const bool blanco = c == u'\r' || c == u'\n' || c == u'\t' || c == u' ';
        if (!blanco)
            linea += c;
        else if (!linea.ends_with(u' '))
            linea += u' ';
    }
    return linea;
}

// Cuts a long line around the range.
void acorta(Linea& linea) {
    constexpr std::size_t antes = 60;
    constexpr std::size_t ancho = 78;
    if (linea.desde > antes) {
        const std::size_t fuera = linea.desde - antes;
        linea.texto = u"…" + linea.texto.substr(fuera);
        linea.desde -= fuera - 1;
        linea.hasta -= fuera - 1;
    }
    if (linea.texto.size() <= ancho) return;
    linea.texto = linea.texto.substr(0, ancho) + u"…";
    linea.hasta = std::min(linea.hasta, ancho);
}

} // namespace

std::u16string lineaDeError(const Diagnostico& diagnostico) {
    const Punto& inicio = diagnostico.rango.inicio;
    std::u16string linea = aTexto(inicio.linea) + u":" + aTexto(inicio.columna) + u": ";
    linea.append(nombreDe(diagnostico.gravedad)).append(u": ");
    linea.append(visible(enUnaLinea(mensaje(diagnostico))));
    return linea.append(u" [").append(nombreDe(diagnostico.codigo)).append(u"]");
}

std::u16string muestraError(const Diagnostico& diagnostico, std::u16string_view fichero,
                            std::u16string_view texto) {
    Linea linea = lineaDe(diagnostico.rango, texto);
    acorta(linea);
    std::u16string muestra = visible(fichero) + u":" + lineaDeError(diagnostico) + u"\n";
    muestra += linea.texto + u"\n" + std::u16string(linea.desde, u' ');
    return muestra + std::u16string(linea.hasta - linea.desde, u'^');
}

} // namespace norvik::orden
