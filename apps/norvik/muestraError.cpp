// SPDX-License-Identifier: MIT

#include "muestraError.hpp"

#include "salida.hpp"

#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik::orden {

namespace {

struct LineaMostrada {
    std::u16string texto; ///< as a terminal can show it, each character in one place
    std::size_t desde = 0;
    std::size_t hasta = 0;
};

// The line of a range, with the part of the range that stands in it. A long one is cut around the range, and
// nothing else of it is read: there may be as many errors in one line as it has characters.
LineaMostrada lineaDe(const Rango& rango, std::u16string_view texto) {
    constexpr std::size_t antes = 60;
    constexpr std::size_t ancho = 78;
    const auto inicio = static_cast<std::size_t>(rango.inicio.desplazamiento);
    const auto columna = static_cast<std::size_t>(rango.inicio.columna) - 1;
    const std::size_t fuera = columna - std::min(columna, antes);
    const std::u16string_view trozo = texto.substr(inicio - columna + fuera, ancho + 1);
    LineaMostrada linea;
    linea.texto = (fuera > 0 ? u"…" : u"") + visible(trozo.substr(0, trozo.find_first_of(u"\r\n")));
    std::replace(linea.texto.begin(), linea.texto.end(), u'\t',
                 u' '); // the caret has to stand under its place
    linea.desde = std::min(columna - fuera + (fuera > 0 ? 1 : 0), linea.texto.size());
    const auto largo = static_cast<std::size_t>(rango.fin.desplazamiento) - inicio;
    linea.hasta = std::min(linea.desde + std::max<std::size_t>(largo, 1),
                           std::max(linea.texto.size(), linea.desde + 1));
    if (linea.texto.size() <= ancho) return linea;
    linea.texto = linea.texto.substr(0, ancho) + u"…";
    linea.hasta = std::min(linea.hasta, ancho);
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

// Of the terminal's own sixteen, those that can be read on light and dark.
std::u16string_view colorDe(Gravedad gravedad) {
    switch (gravedad) {
    case Gravedad::Error:
        return u"1;31";
    case Gravedad::Aviso:
        return u"1;35";
    case Gravedad::Nota:
        return u"1;36";
    }
    return {};
}

// Puts a text between the sequences of a colour.
class Pintor {
public:
    explicit Pintor(Estilo estilo) : estilo_(estilo) {}
    std::u16string operator()(std::u16string_view color, std::u16string_view texto) const {
        if (estilo_ == Estilo::Liso) return std::u16string(texto);
        return u"\x1B[" + std::u16string(color) + u"m" + std::u16string(texto) + u"\x1B[0m";
    }

private:
    Estilo estilo_;
};

// The first repairs: the others differ little.
std::u16string muestraArreglos(const std::vector<Arreglo>& arreglos) {
    constexpr std::size_t maximo = 3;
    std::u16string lista;
    for (std::size_t i = 0; i < std::min(arreglos.size(), maximo); ++i)
        lista += (i == 0 ? u"" : u", o ") + visible(enUnaLinea(arreglos[i].titulo));
    return arreglos.size() > maximo ? lista + u"…" : lista;
}

// The first line; the file stands before the place.
std::u16string cabecera(const Diagnostico& diagnostico, std::u16string_view fichero, const Pintor& pinta) {
    constexpr std::u16string_view negrita = u"1";
    const Punto& inicio = diagnostico.rango.inicio;
    const std::u16string lugar =
        std::u16string(fichero) + aTexto(inicio.linea) + u":" + aTexto(inicio.columna) + u":";
    std::u16string linea = pinta(negrita, lugar) + u" ";
    linea += pinta(colorDe(diagnostico.gravedad), std::u16string(nombreDe(diagnostico.gravedad)) + u":");
    linea.append(u" ").append(visible(enUnaLinea(mensaje(diagnostico))));
    return linea.append(u" [").append(nombreDe(diagnostico.codigo)).append(u"]");
}

} // namespace

std::u16string lineaDeError(const Diagnostico& diagnostico) {
    return cabecera(diagnostico, {}, Pintor(Estilo::Liso));
}

std::u16string muestraError(const Diagnostico& diagnostico, std::u16string_view fichero,
                            std::u16string_view texto, Estilo estilo) {
    constexpr std::u16string_view verde = u"1;32";
    const Pintor pinta(estilo);
    const LineaMostrada linea = lineaDe(diagnostico.rango, texto);
    std::u16string muestra = cabecera(diagnostico, visible(fichero) + u":", pinta) + u"\n";
    muestra += linea.texto + u"\n" + std::u16string(linea.desde, u' ');
    muestra += pinta(colorDe(diagnostico.gravedad), std::u16string(linea.hasta - linea.desde, u'^'));
    const auto& arreglos = diagnostico.partes.arreglos;
    if (arreglos.empty()) return muestra;
    return muestra + u"\n" + pinta(verde, u"arreglo:") + u" " + muestraArreglos(arreglos);
}

} // namespace norvik::orden
