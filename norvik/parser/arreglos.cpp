// SPDX-License-Identifier: MIT

// A repair as changes of the text: what happens between two tokens that are kept is one change. What is put
// in stands behind the token before it, as a person writes a semicolon, with a blank where it would run into
// its neighbours; what is taken out leaves one where the neighbours would run into each other.
#include "norvik/parser/arreglos.hpp"

#include "norvik/base/palabras.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr std::size_t maximoDeTitulo = 40;

bool esBlanco(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

// Two neighbours that may be read as one: parts of words, or signs that do not stand for themselves.
bool seJuntan(char16_t a, char16_t b) {
    constexpr std::u16string_view sueltos = u"()[]{},;";
    if (esBlanco(a) || esBlanco(b)) return false;
    if (sueltos.find(a) != std::u16string_view::npos || sueltos.find(b) != std::u16string_view::npos)
        return false;
    return esDePalabra(a) == esDePalabra(b);
}

void pega(std::u16string& texto, std::u16string_view otro) {
    if (!texto.empty() && !otro.empty() && seJuntan(texto.back(), otro.front())) texto += u' ';
    texto.append(otro);
}

} // namespace

Arreglo Redactor::arreglo(const Reparacion& reparacion) {
    Arreglo arreglo;
    Tramo tramo = primero();
    std::size_t token = lugar_.token;
    for (const PasoReparacion& paso : reparacion) {
        switch (paso.tipo) {
        case PasoReparacion::Tipo::Inserta:
            tramo.insertados.push_back(paso.columna);
            break;
        case PasoReparacion::Tipo::Quita:
            tramo.quitados.push_back(entrada_.en(token++).sitio);
            break;
        case PasoReparacion::Tipo::Conserva: {
            acaba(tramo, arreglo);
            const TokenSituado sitio = entrada_.en(token++).sitio;
            tramo = {{}, {}, sitio.fin, sitio};
        }
        }
    }
    acaba(tramo, arreglo);
    return arreglo;
}

Redactor::Tramo Redactor::primero() {
    Tramo tramo{{}, {}, lugar_.anterior};
    const auto& [inicio, fin] = entrada_.en(lugar_.token).incorrectos;
    if (inicio != fin)
        tramo.quitados.push_back(
            {TokenLeido::desconocido, static_cast<std::uint32_t>(inicio), static_cast<std::uint32_t>(fin)});
    return tramo;
}

void Redactor::acaba(const Tramo& tramo, Arreglo& arreglo) const {
    if (tramo.vacio()) return;
    arreglo.titulo = palabras::yTambien(arreglo.titulo, titulo(tramo));
    arreglo.cambios.push_back(cambio(tramo));
}

Cambio Redactor::cambio(const Tramo& tramo) const {
    const auto& [insertados, quitados, anterior, conservado] = tramo;
    const std::size_t inicio = quitados.empty() ? anterior : quitados.front().inicio;
    const std::size_t fin = quitados.empty() ? anterior : quitados.back().fin;
    Cambio cambio{texto_.lugares.rango(inicio, fin), {}, false};
    const std::u16string_view todo = texto_.texto;
    const std::u16string_view delante = todo.substr(inicio == 0 ? 0 : inicio - 1, inicio == 0 ? 0 : 1);
    const std::u16string_view detras = todo.substr(fin, 1);
    std::u16string junto(delante);
    for (const std::int16_t columna : insertados) {
        const FichaToken& ficha = fichas_.de(columna);
        cambio.conNombres = cambio.conNombres || !ficha.textoFijo;
        pega(junto, ficha.textoFijo ? *ficha.textoFijo : ficha.nombre);
    }
    pega(junto, detras);
    cambio.texto = junto.substr(delante.size(), junto.size() - delante.size() - detras.size());
    return cambio;
}

std::u16string Redactor::titulo(const Tramo& tramo) const {
    std::u16string puestos;
    for (const std::int16_t columna : tramo.insertados) {
        const FichaToken& ficha = fichas_.de(columna);
        if (!puestos.empty()) puestos += u' ';
        puestos += ficha.textoFijo ? palabras::entreApostrofos(*ficha.textoFijo) : ficha.nombre;
    }
    const std::u16string titulo = palabras::arreglo(puestos, quitados(tramo));
    // The place of the error says nothing of a change further on.
    return tramo.conservado ? palabras::detrasDe(titulo, lexema(*tramo.conservado)) : titulo;
}

std::u16string Redactor::quitados(const Tramo& tramo) const {
    std::u16string lexemas;
    for (const TokenSituado& quitado : tramo.quitados) {
        if (!lexemas.empty()) lexemas += u' ';
        lexemas += lexema(quitado);
        if (lexemas.size() <= maximoDeTitulo) continue;
        lexemas = lexemas.substr(0, maximoDeTitulo) + u"…";
        break;
    }
    return lexemas.empty() ? lexemas : palabras::entreApostrofos(lexemas);
}

std::u16string Redactor::lexema(const TokenSituado& token) const {
    return texto_.texto.substr(token.inicio, token.fin - token.inicio);
}

} // namespace norvik::inline v0_2
