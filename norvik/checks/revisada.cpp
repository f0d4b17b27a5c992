// SPDX-License-Identifier: MIT

#include "norvik/checks/revisada.hpp"

#include "norvik/base/lugares.hpp"
#include "norvik/checks/comprobaciones.hpp"
#include "norvik/checks/contrasteClasico.hpp"
#include "norvik/checks/nombreCercano.hpp"
#include "norvik/pattern/patronClase.hpp"
#include "norvik/spec/compiladorLenguaje.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

// What is known where a name is not: heads for a variable, tokens for a token, definitions for a reference.
std::vector<std::u16string> conocidosPara(const Diagnostico& diagnostico,
                                          const FuenteEspecificacion& fuente) {
    std::vector<std::u16string> nombres;
    if (diagnostico.codigo == Codigo::VariableIndefinida) {
        for (const FuenteEspecificacion::Regla& regla : fuente.reglas) nombres.push_back(regla.cabeza.nombre);
        return nombres;
    }
    for (const FuenteEspecificacion::Definicion& d : fuente.definiciones)
        if (d.esToken || diagnostico.codigo == Codigo::ReferenciaDesconocida) nombres.push_back(d.nombre);
    return nombres;
}

// Narrows an unknown reference to its place between the quotes, and says where the name is defined.
void situaReferencia(Diagnostico& diagnostico, const FuenteEspecificacion& fuente) {
    const std::u16string& referencia = diagnostico.partes.hallado;
    for (const FuenteEspecificacion::Definicion& d : fuente.definiciones) {
        if (d.nombre == referencia) diagnostico.partes.relacionados.push_back({d.lugarNombre, d.nombre});
        const std::size_t sitio = d.texto.find(u'<' + referencia + u'>');
        if (d.lugarTexto != diagnostico.rango || sitio == std::u16string::npos) continue;
        diagnostico.rango = d.lugarDe(sitio, referencia.size() + 2);
    }
}

void completa(Diagnostico& diagnostico, const FuenteEspecificacion& fuente) {
    const Codigo codigo = diagnostico.codigo;
    const bool esReferencia = codigo == Codigo::ReferenciaDesconocida;
    if (esReferencia) situaReferencia(diagnostico, fuente);
    const bool faltaNombre =
        esReferencia || codigo == Codigo::VariableIndefinida || codigo == Codigo::TokenIndefinido;
    const bool estaDefinido = esReferencia && !diagnostico.partes.relacionados.empty();
    if (!faltaNombre || estaDefinido) return;
    const auto cercano = nombreCercano(diagnostico.partes.hallado, conocidosPara(diagnostico, fuente));
    if (!cercano.empty()) diagnostico.partes.esperados = {cercano};
}

bool esDeNombre(char16_t c) {
    constexpr std::u16string_view separadores = u" \t\r\n;|,=()\"'{}<>";
    return separadores.find(c) == std::u16string_view::npos;
}

// A wrong character among letters is one of a name, which is then told whole.
void ensanchaANombre(Diagnostico& diagnostico, std::u16string_view especificacion, const Lugares& lugares) {
    if (diagnostico.codigo != Codigo::CaracterIncorrecto) return;
    const auto sitio = static_cast<std::size_t>(diagnostico.rango.inicio.desplazamiento);
    const auto fin = static_cast<std::size_t>(
        std::find_if_not(especificacion.begin() + diagnostico.rango.inicio.desplazamiento,
                         especificacion.end(), esDeNombre) -
        especificacion.begin());
    std::size_t inicio = sitio;
    while (inicio > 0 && esDeNombre(especificacion[inicio - 1])) --inicio;
    const std::u16string_view nombre = especificacion.substr(inicio, fin - inicio);
    const auto esLetra = [](char16_t c) { return tiene(Propiedad::Letra, c); };
    if (std::ranges::none_of(nombre, esLetra)) return;
    diagnostico.codigo = Codigo::NombreIncorrecto;
    diagnostico.partes.nombre = nombre;
    diagnostico.partes.esperados.clear();
    diagnostico.rango = lugares.rango(inicio, fin);
}

// One that has several wrong characters is told once.
void situaNombres(std::vector<Diagnostico>& hallazgos, std::u16string_view especificacion) {
    const Lugares lugares(especificacion, Lugares::Unidad::Utf16);
    for (Diagnostico& hallazgo : hallazgos) ensanchaANombre(hallazgo, especificacion, lugares);
    const auto esElMismo = [](const Diagnostico& uno, const Diagnostico& otro) {
        return uno.codigo == Codigo::NombreIncorrecto && otro.codigo == uno.codigo && uno.rango == otro.rango;
    };
    hallazgos.erase(std::unique(hallazgos.begin(), hallazgos.end(), esElMismo), hallazgos.end());
}

LugaresReglas lugaresDe(const FuenteEspecificacion& fuente) {
    LugaresReglas lugares;
    for (const FuenteEspecificacion::Regla& regla : fuente.reglas) {
        lugares.cabezas.push_back(regla.cabeza.lugar);
        lugares.cuerpos.push_back(regla.lugar);
    }
    return lugares;
}

// One step changes the language: a line at its head, or another value in the one that is there.
void ofreceMetodo(std::u16string_view especificacion, std::vector<Diagnostico>& apartados) {
    std::size_t inicio = 0;
    std::size_t fin = 0;
    for (const LineaDirectiva& linea : lineasDeDirectivas(cabecera(especificacion)))
        if (linea.palabra == u"metodo") inicio = linea.inicio, fin = linea.fin;
    const Rango lugar = Lugares(especificacion, Lugares::Unidad::Utf16).rango(inicio, fin);
    for (Diagnostico& diagnostico : apartados) {
        const bool esFrase =
            diagnostico.codigo == Codigo::FraseRechazada || diagnostico.codigo == Codigo::FraseDeMas;
        if (esFrase && diagnostico.partes.esperados.empty()) continue; // no method knows better
        const std::u16string directiva =
            u"'% metodo: " + (esFrase ? diagnostico.partes.esperados.front() : u"lalr");
        diagnostico.partes.arreglos.push_back(
            {u"Poner la línea " + directiva + u" al principio",
             {{lugar, inicio == fin ? directiva + u"\n" : directiva, false}}});
    }
}

} // namespace

const gramatica* Revisada::laGramatica() const {
    return lenguaje && lenguaje->tieneGramatica() ? &lenguaje->datos().reglas : nullptr;
}

Revisada revisada(std::u16string_view especificacion, const OpcionesCompilacion& opciones,
                  ErroresBuscados errores) {
    Revisada revision;
    revision.directivas = directivasDe(especificacion, opciones, Lugares::Unidad::Utf16);
    const Directivas& directivas = revision.directivas;
    Analisis analisis =
        analiza(lenguajeDeEspecificaciones(), especificacion, {opciones.cancelacion, errores});
    if (!analisis) {
        revision.hallazgos = std::move(analisis.diagnosticos);
        situaNombres(revision.hallazgos, especificacion);
        return revision;
    }
    Compilacion compilacion = compilaEspecificacion(analisis, directivas, opciones.cancelacion);
    std::vector<Diagnostico>& hallazgos = revision.hallazgos;
    hallazgos = std::move(compilacion.diagnosticos);
    revision.lenguaje = std::move(compilacion.lenguaje);
    const auto cancelada = [&] { return !hallazgos.empty() && hallazgos.back().codigo == Codigo::Cancelado; };
    if (cancelada()) return revision;
    const FuenteEspecificacion& fuente = revision.fuente = fuenteDe(analisis);
    for (Diagnostico& diagnostico : hallazgos) completa(diagnostico, fuente);
    compruebaDirectivas(especificacion, fuente, directivas, hallazgos);
    compruebaTokens(fuente, directivas, opciones.cancelacion, hallazgos);
    if (cancelada()) return revision;
    compruebaReglas(fuente, directivas.tabla.metodo, hallazgos);
    if (const gramatica* g = revision.laGramatica();
        g != nullptr && directivas.tabla.metodo == Metodo::Clasico) {
        auto apartados = contrastaClasico(g->valores(), lugaresDe(fuente));
        if (!opciones.metodo) ofreceMetodo(especificacion, apartados);
        std::ranges::move(apartados, std::back_inserter(hallazgos));
    }
    return revision;
}

void ordena(std::vector<Diagnostico>& hallazgos) {
    std::ranges::stable_sort(hallazgos, {},
                             [](const Diagnostico& d) { return d.rango.inicio.desplazamiento; });
}

} // namespace norvik::inline v0_2
