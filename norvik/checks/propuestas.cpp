// SPDX-License-Identifier: MIT

// The language of specifications knows comments and strings as wholes: what directives and patterns are made
// of is found in the line that is written.
#include "norvik/checks/propuestas.hpp"

#include "norvik/checks/nombres.hpp"
#include "norvik/grammar/metodo.hpp"
#include "norvik/spec/compiladorLenguaje.hpp"
#include "norvik/spec/directivas.hpp"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

using Papel = NombreEscrito::Papel;

/// What is written of the line before a position.
std::u16string_view lineaHasta(std::u16string_view texto, std::size_t posicion) {
    const std::u16string_view antes = texto.substr(0, posicion);
    const std::size_t salto = antes.find_last_of(u"\r\n");
    return salto == std::u16string_view::npos ? antes : antes.substr(salto + 1);
}

/// The names with a role that stand before a position, in the order of the alphabet.
std::set<std::u16string> nombresCon(std::span<const NombreEscrito> nombres, std::size_t posicion,
                                    std::initializer_list<Papel> papeles) {
    std::set<std::u16string> suyos;
    for (const NombreEscrito& n : nombres)
        if (static_cast<std::size_t>(n.lugar.fin.desplazamiento) < posicion &&
            std::ranges::find(papeles, n.papel) != papeles.end())
            suyos.insert(n.nombre);
    return suyos;
}

template <typename Textos>
void anota(const Textos& textos, Continuacion::Clase clase, std::vector<Continuacion>& propuestas) {
    for (const auto& texto : textos) propuestas.push_back({clase, std::u16string(texto)});
}

Continuaciones enDirectiva(std::u16string_view texto, std::size_t posicion, std::u16string_view linea) {
    linea.remove_prefix(marcaDeDirectiva.size());
    const std::size_t ultimo = linea.find_last_of(u" \t");
    const std::size_t largo = ultimo == std::u16string_view::npos ? linea.size() : linea.size() - ultimo - 1;
    Continuaciones siguen{posicion - largo, {}};
    const std::size_t fin = linea.find(u": ");
    const std::u16string_view palabra = linea.substr(0, fin);
    if (fin == std::u16string_view::npos) {
        for (const std::u16string_view conocida : palabrasDeDirectivas)
            siguen.propuestas.push_back({Continuacion::Clase::Palabra, std::u16string(conocida) + u": "});
    } else if (palabra == u"metodo") {
        for (const auto& [nombre, metodo] : metodos)
            siguen.propuestas.push_back({Continuacion::Clase::Palabra, std::u16string(nombre)});
    } else if (palabra == u"mayusculas") {
        siguen.propuestas.push_back({Continuacion::Clase::Palabra, std::u16string(valorDeMayusculas)});
    } else if (asociatividadDe(palabra)) {
        const auto nombres = nombresEscritos(texto);
        anota(nombresCon(nombres, texto.size() + 1, {Papel::Token}), Continuacion::Clase::DelTexto,
              siguen.propuestas);
    }
    return siguen;
}

/// Where the reference begins that is written behind a position of a pattern; nothing elsewhere. No pattern
/// has a quote in it.
std::optional<std::size_t> referenciaEn(std::u16string_view linea) {
    const std::size_t comilla = linea.find_last_of(u'"');
    if (comilla == std::u16string_view::npos || std::ranges::count(linea, u'"') % 2 == 0) return std::nullopt;
    const std::u16string_view patron = linea.substr(comilla + 1);
    const std::size_t abre = patron.find_last_of(u"<>");
    const bool abierta =
        abre != std::u16string_view::npos && patron[abre] == u'<' && (abre == 0 || patron[abre - 1] != u'\\');
    return abierta ? std::optional(comilla + 1 + abre + 1) : std::nullopt;
}

/// Where the definition begins that a position is in: it cannot refer to itself.
std::size_t inicioDeDefinicion(std::span<const NombreEscrito> nombres, std::size_t posicion) {
    std::size_t inicio = 0;
    for (const NombreEscrito& n : nombres) {
        const auto suyo = static_cast<std::size_t>(n.lugar.inicio.desplazamiento);
        if (suyo < posicion && (n.papel == Papel::Auxiliar || n.papel == Papel::Token)) inicio = suyo;
    }
    return inicio;
}

Continuaciones enPatron(std::u16string_view texto, std::size_t posicion, std::size_t inicio) {
    Continuaciones siguen{inicio, {}};
    const bool cerrada = posicion < texto.size() && texto[posicion] == u'>';
    const auto nombres = nombresEscritos(texto);
    for (const std::u16string& nombre :
         nombresCon(nombres, inicioDeDefinicion(nombres, inicio), {Papel::Auxiliar, Papel::Token}))
        siguen.propuestas.push_back({Continuacion::Clase::DelTexto, cerrada ? nombre : nombre + u">"});
    return siguen;
}

bool seEstrena(std::u16string_view antes) {
    const Lexemas leidos = lexemas(lenguajeDeEspecificaciones(), antes);
    if (leidos.size() == 0) return false;
    const std::u16string_view ultimo = leidos[leidos.size() - 1].nombre;
    return ultimo == u"expreg" || ultimo == u"token";
}

/// A name that is given now is no other's, and a rule is not made of regular definitions.
void quitaNombres(std::u16string_view texto, Continuaciones& siguen) {
    const bool nuevo = seEstrena(texto.substr(0, siguen.inicio));
    const auto auxiliares = nombresCon(nombresEscritos(texto), texto.size() + 1, {Papel::Auxiliar});
    std::erase_if(siguen.propuestas, [&](const Continuacion& c) {
        return c.clase == Continuacion::Clase::DelTexto && (nuevo || auxiliares.contains(c.texto));
    });
}

} // namespace

Continuaciones continuacionesDeEspecificacion(std::u16string_view especificacion, std::size_t posicion) {
    posicion = std::min(posicion, especificacion.size());
    const std::u16string_view linea = lineaHasta(especificacion, posicion);
    if (linea.starts_with(marcaDeDirectiva)) return enDirectiva(especificacion, posicion, linea);
    if (const auto inicio = referenciaEn(linea))
        return enPatron(especificacion, posicion, posicion - linea.size() + *inicio);
    Continuaciones siguen = continuaciones(lenguajeDeEspecificaciones(), especificacion, posicion);
    quitaNombres(especificacion, siguen);
    return siguen;
}

} // namespace norvik::inline v0_2
