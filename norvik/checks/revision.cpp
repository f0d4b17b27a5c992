// SPDX-License-Identifier: MIT

#include "norvik/checks/revision.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/comprobaciones.hpp"
#include "norvik/checks/fuente.hpp"
#include "norvik/checks/nombreCercano.hpp"
#include "norvik/pattern/patronClase.hpp"
#include "norvik/spec/compiladorLenguaje.hpp"

#include <algorithm>
#include <string>

namespace norvik {

namespace {

// What is known where a name is not: heads for a variable, tokens for a token, definitions for a reference.
std::vector<std::u16string> conocidosPara(const Diagnostico& diagnostico, const Fuente& fuente) {
    std::vector<std::u16string> nombres;
    if (diagnostico.codigo == Codigo::VariableIndefinida) {
        for (const Fuente::Regla& regla : fuente.reglas) nombres.push_back(regla.cabeza.nombre);
        return nombres;
    }
    for (const Fuente::Definicion& d : fuente.definiciones)
        if (d.esToken || diagnostico.codigo == Codigo::ReferenciaDesconocida) nombres.push_back(d.nombre);
    return nombres;
}

// Narrows an unknown reference to its place between the quotes, and says where the name is defined.
void situaReferencia(Diagnostico& diagnostico, const Fuente& fuente) {
    const std::u16string& referencia = diagnostico.partes.hallado;
    for (const Fuente::Definicion& d : fuente.definiciones) {
        if (d.nombre == referencia) diagnostico.partes.relacionados.push_back({d.lugarNombre, d.nombre});
        const std::size_t sitio = d.texto.find(u'<' + referencia + u'>');
        if (d.lugarTexto != diagnostico.rango || sitio == std::u16string::npos) continue;
        diagnostico.rango = d.lugarDe(sitio, referencia.size() + 2);
    }
}

void completa(Diagnostico& diagnostico, const Fuente& fuente) {
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
void ensanchaANombre(Diagnostico& diagnostico, std::u16string_view especificacion) {
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
    diagnostico.rango = Lugares(especificacion, Lugares::Unidad::Utf16).rango(inicio, fin);
}

} // namespace

std::vector<Diagnostico> revisa(std::u16string_view especificacion, const OpcionesCompilacion& opciones) {
    const Directivas directivas = directivasDe(especificacion, opciones, Lugares::Unidad::Utf16);
    Analisis analisis = analiza(lenguajeDeEspecificaciones(), especificacion);
    if (!analisis) {
        for (Diagnostico& diagnostico : analisis.diagnosticos) ensanchaANombre(diagnostico, especificacion);
        return std::move(analisis.diagnosticos);
    }
    std::vector<Diagnostico> hallazgos = compilaEspecificacion(analisis, directivas).diagnosticos;
    const Fuente fuente = fuenteDe(analisis);
    for (Diagnostico& diagnostico : hallazgos) completa(diagnostico, fuente);
    compruebaDirectivas(especificacion, fuente, directivas, hallazgos);
    compruebaTokens(fuente, directivas, hallazgos);
    compruebaReglas(fuente, directivas.tabla.metodo, hallazgos);
    std::ranges::stable_sort(hallazgos, {},
                             [](const Diagnostico& d) { return d.rango.inicio.desplazamiento; });
    return hallazgos;
}

} // namespace norvik
