// SPDX-License-Identifier: MIT

#include "coloreado.hpp"

#include "salida.hpp"

#include "norvik/base/html.hpp"
#include "norvik/base/texto.hpp"

#include <string>

namespace norvik::orden {

namespace {

struct Rgb {
    unsigned rojo;
    unsigned verde;
    unsigned azul;
};

// A colour is 0x00BBGGRR.
Rgb componentes(std::int32_t color) {
    const auto valor = static_cast<std::uint32_t>(color);
    return {valor & 0xFFU, (valor >> 8) & 0xFFU, (valor >> 16) & 0xFFU};
}

std::string decimal(std::int32_t color) {
    const auto [rojo, verde, azul] = componentes(color);
    return std::to_string(rojo) + ";" + std::to_string(verde) + ";" + std::to_string(azul);
}

std::string hexadecimal(std::int32_t color) {
    constexpr std::string_view cifras = "0123456789abcdef";
    const auto [rojo, verde, azul] = componentes(color);
    std::string resultado;
    for (const unsigned valor : {rojo, verde, azul}) {
        resultado += cifras[valor / 16];
        resultado += cifras[valor % 16];
    }
    return resultado;
}

// Characters that only say in which direction the others are written stay, since the text is to be copied
// from the page, but act on nothing else there.
std::string escapa(std::u16string_view texto) {
    std::u16string resultado;
    for (const char16_t c : texto) {
        if (c == u'&')
            resultado += u"&amp;";
        else if (c == u'<')
            resultado += u"&lt;";
        else if (c == u'>')
            resultado += u"&gt;";
        else if (esDeDireccion(c))
            resultado.append(u"<bdi>").append(1, c).append(u"</bdi>");
        else
            resultado += visible({&c, 1});
    }
    return aUtf8(resultado);
}

/// Calls `trozo(texto, color)` for each part of a line in one colour, and `salto()` between lines.
template <typename Trozo, typename Salto>
void recorre(const CajaTexto& caja, Trozo trozo, Salto salto) {
    for (const auto& [inicio, longitud, color] : caja.colores()) {
        auto tramo =
            caja.texto().substr(static_cast<std::size_t>(inicio), static_cast<std::size_t>(longitud));
        while (!tramo.empty()) {
            const std::size_t fin = tramo.find_first_of(saltoDeLinea);
            if (fin != 0) trozo(tramo.substr(0, fin), color);
            if (fin == std::u16string_view::npos) break;
            if (tramo[fin] == u'\n') salto();
            tramo.remove_prefix(fin + 1);
        }
    }
}

} // namespace

std::string ansiDe(const CajaTexto& caja) {
    std::string salida;
    const auto trozo = [&](std::u16string_view texto, std::int32_t color) {
        if (color == 0) {
            salida += aUtf8(visible(texto));
            return;
        }
        salida += "\x1B[38;2;" + decimal(color) + "m" + aUtf8(visible(texto)) + "\x1B[39m";
    };
    recorre(caja, trozo, [&] { salida += '\n'; });
    if (!caja.texto().empty()) salida += '\n';
    return salida;
}

std::string htmlDe(const CajaTexto& caja, std::u16string_view titulo) {
    std::string salida =
        "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
        escapa(visible(titulo)) +
        "</title>\n<style>\n:root { color-scheme: light; }\n"
        "body { background: #fff; color: #000; }\n"
        "pre { font-family: \"Courier New\", monospace; tab-size: 4; }\n"
        "</style>\n</head>\n<body>\n<pre>\n"; // the first line end after <pre> does not count
    const auto trozo = [&](std::u16string_view texto, std::int32_t color) {
        const std::string contenido = escapa(texto);
        salida += color == 0 ? contenido
                             : "<span style=\"color:#" + hexadecimal(color) + "\">" + contenido + "</span>";
    };
    recorre(caja, trozo, [&] { salida += '\n'; });
    return salida + "</pre>\n</body>\n</html>\n";
}

} // namespace norvik::orden
