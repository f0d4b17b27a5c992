// SPDX-License-Identifier: MIT

#include "ordenes.hpp"

#include "anfitrion.hpp"
#include "json.hpp"

#include "norvik/base/lineas.hpp"
#include "norvik/base/palabras.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/parser/erroresTexto.hpp"

#include <algorithm>
#include <vector>

namespace norvik::orden {

namespace {

struct Leido {
    parLT token;
    std::int16_t linea = 0;
    std::int32_t columna = 0;
};

bool esError(const parLT& token) {
    return token.GetToken() == u"Norvik_ERROR";
}

std::vector<Leido> leeTokens(Norvik& control) {
    std::vector<Leido> leidos;
    control.InicializaLecturaTokens();
    do {
        parLT token = control.Lex();
        leidos.push_back({std::move(token), control.LineaToken(), control.ColumnaToken()});
    } while (!esError(leidos.back().token) && leidos.back().token.GetToken() != u"EOF");
    return leidos;
}

std::string tabla(const std::vector<Leido>& leidos) {
    constexpr std::size_t anchoNumero = 9;
    std::size_t ancho = 6;
    for (const Leido& leido : leidos) ancho = std::max(ancho, leido.token.GetToken().size() + 2);
    const auto columna = [](std::u16string texto, std::size_t anchura) {
        texto.resize(std::max(texto.size(), anchura), u' ');
        return texto;
    };
    std::u16string lineas = columna(u"Línea", anchoNumero) + columna(u"Columna", anchoNumero) +
                            columna(u"Token", ancho) + u"Lexema\n";
    for (const auto& [token, linea, sitio] : leidos)
        lineas += columna(aTexto(linea), anchoNumero) + columna(aTexto(sitio), anchoNumero) +
                  columna(token.GetToken(), ancho) + visible(token.GetLexema()) + u"\n";
    return aUtf8(lineas);
}

// As a parse would report it.
std::u16string mensajeDeError(const Leido& leido) {
    return palabras::errorLexico(leido.linea, leido.columna, leido.token.GetLexema());
}

Diagnostico diagnosticoDe(const Leido& leido, std::u16string_view texto) {
    IndiceLineas lineas;
    lineas.reconstruye(texto);
    const std::int32_t indice = lineas.inicioDe(leido.linea - 1) + leido.columna - 1;
    return caracterIncorrecto(texto, static_cast<std::size_t>(indice),
                              Lugares(texto, Lugares::Unidad::Utf16));
}

} // namespace

int ejecuta(const Lexemas& orden, Salida& salida) {
    const std::u16string texto = leeTextoDe(orden.texto);
    Anfitrion anfitrion(salida);
    if (!anfitrion.cargaLenguaje(orden.lenguaje, orden.metodo)) return anfitrion.estado();
    anfitrion.control.Text(texto);
    const std::vector<Leido> leidos = leeTokens(anfitrion.control);
    switch (orden.formato) {
    case FormatoLexemas::Tabla:
        salida.escribe(tabla(leidos));
        break;
    case FormatoLexemas::Json:
        for (const auto& [token, linea, columna] : leidos) escribeJson(token, linea, columna, salida);
        break;
    }
    if (const Leido& ultimo = leidos.back(); esError(ultimo.token))
        anfitrion.cuentaErrores(mensajeDeError(ultimo), {diagnosticoDe(ultimo, texto)}, orden.texto, texto);
    return anfitrion.estado();
}

} // namespace norvik::orden
