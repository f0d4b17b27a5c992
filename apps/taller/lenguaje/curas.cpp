// SPDX-License-Identifier: MIT

#include "curas.hpp"

#include "palabrasLR.hpp"

#include "norvik/base/lugares.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/spec/directivas.hpp"

#include <algorithm>
#include <utility>

namespace norvik::taller {

namespace {

using Cura = HistoriaConflicto::Cura;

/// The change that makes one text of another, where they differ.
Arreglo arregloDe(std::u16string titulo, std::u16string_view antes, std::u16string_view despues) {
    const auto [a, d] = std::ranges::mismatch(antes, despues);
    const auto inicio = static_cast<std::size_t>(a - antes.begin());
    std::size_t cola = 0;
    const std::size_t maximo = std::min(antes.size(), despues.size()) - inicio;
    while (cola < maximo && antes[antes.size() - cola - 1] == despues[despues.size() - cola - 1]) ++cola;
    const Rango rango = Lugares(antes, Lugares::Unidad::Utf16).rango(inicio, antes.size() - cola);
    return {std::move(titulo),
            {{rango, std::u16string(despues.substr(inicio, despues.size() - cola - inicio)), false}}};
}

std::u16string lineaDe(std::u16string_view palabra, std::u16string_view valor) {
    return std::u16string(marcaDeDirectiva).append(palabra).append(u": ").append(valor);
}

/// With one more directive, behind those that there are.
std::u16string conDirectiva(std::u16string_view especificacion, std::u16string_view palabra,
                            std::u16string_view valor) {
    const std::u16string linea = lineaDe(palabra, valor);
    const auto lineas = lineasDeDirectivas(cabecera(especificacion));
    std::u16string otra(especificacion);
    if (lineas.empty()) return linea + u"\r\n" + otra;
    return otra.insert(lineas.back().fin, u"\r\n" + linea);
}

/// So many conflicts are meant: of several lines that say so the last one counts.
std::u16string conConflictos(std::u16string_view especificacion, std::size_t cuantos) {
    constexpr std::u16string_view palabra = u"conflictos";
    const std::u16string valor = aTexto(static_cast<std::int64_t>(cuantos));
    auto lineas = lineasDeDirectivas(cabecera(especificacion));
    std::ranges::reverse(lineas);
    const auto suya = std::ranges::find(lineas, palabra, &LineaDirectiva::palabra);
    if (suya == lineas.end()) return conDirectiva(especificacion, palabra, valor);
    std::u16string otra(especificacion);
    return otra.replace(suya->inicio, suya->fin - suya->inicio, lineaDe(palabra, valor));
}

/// Precedence, and that conflicts are meant, are for the exact methods.
std::u16string conMetodoExacto(const LenguajeEstudiado& lenguaje) {
    const bool clasico = lenguaje.opciones().metodo == Metodo::Clasico;
    return clasico ? conMetodo(lenguaje.especificacion, Metodo::Lalr) : lenguaje.especificacion;
}

std::vector<Arreglo> metodo(const LenguajeEstudiado& lenguaje, Metodo metodo, std::u16string_view nombre) {
    return {arregloDe(u"Pasar al método " + std::u16string(nombre), lenguaje.especificacion,
                      conMetodo(lenguaje.especificacion, metodo))};
}

std::vector<Arreglo> asociatividad(const LenguajeEstudiado& lenguaje, std::u16string_view operador) {
    std::vector<Arreglo> arreglos;
    for (const std::u16string_view palabra : {u"izquierda", u"derecha"})
        arreglos.push_back(arregloDe(entreComillas(operador) + u" asocia por la " + std::u16string(palabra),
                                     lenguaje.especificacion,
                                     conDirectiva(conMetodoExacto(lenguaje), palabra, operador)));
    return arreglos;
}

/// The operator of a rule is its last token.
std::u16string operadorDe(const GramaticaLR& g, std::int16_t regla) {
    std::u16string operador;
    for (const Simbolo simbolo : g.partidas.cuerpo(regla))
        if (!g.partidas.esVariable(simbolo)) operador = g.partidas.texto(simbolo);
    return operador;
}

/// Later lines bind tighter.
Arreglo liga(const LenguajeEstudiado& lenguaje, std::u16string_view mas, std::u16string_view menos) {
    return arregloDe(
        entreComillas(mas) + u" liga más que " + entreComillas(menos), lenguaje.especificacion,
        conDirectiva(conDirectiva(conMetodoExacto(lenguaje), u"izquierda", menos), u"izquierda", mas));
}

std::vector<Arreglo> prioridad(const LenguajeEstudiado& lenguaje, const HistoriaConflicto& historia) {
    const bool reduceLaPrimera = historia.acciones[0].tipo == AccionConflicto::Tipo::Reducir;
    const std::u16string otro =
        operadorDe(*lenguaje.gramatica(), historia.acciones[reduceLaPrimera ? 0 : 1].regla);
    if (otro.empty() || otro == historia.simbolo) return {};
    return {liga(lenguaje, otro, historia.simbolo), liga(lenguaje, historia.simbolo, otro)};
}

/// What the table does is what is wanted. The line that says so is of all conflicts.
std::vector<Arreglo> dejaloAsi(const LenguajeEstudiado& lenguaje) {
    const std::u16string despues = conConflictos(conMetodoExacto(lenguaje), lenguaje.dudas);
    if (lenguaje.dudas == 0 || despues == lenguaje.especificacion) return {};
    const std::u16string cuantos = aTexto(static_cast<std::int64_t>(lenguaje.dudas));
    return {arregloDe((lenguaje.dudas == 1 ? u"Dejarlo así" : u"Dejar así los " + cuantos + u" conflictos") +
                          u": la tabla ya elige lo que se quiere",
                      lenguaje.especificacion, despues)};
}

} // namespace

std::vector<Arreglo> arreglosDe(const Diagnostico& diagnostico) {
    std::vector<Arreglo> arreglos = diagnostico.partes.arreglos;
    const bool esReferencia = diagnostico.codigo == Codigo::ReferenciaDesconocida;
    const bool esNombre = esReferencia || diagnostico.codigo == Codigo::VariableIndefinida ||
                          diagnostico.codigo == Codigo::TokenIndefinido;
    if (!esNombre || diagnostico.partes.esperados.empty()) return arreglos;
    const std::u16string& querido = diagnostico.partes.esperados.front();
    const std::u16string escrito = esReferencia ? u"<" + querido + u">" : querido;
    Arreglo enTodas{u"escriba " + querido, {{diagnostico.rango, escrito, false}}};
    for (const Relacionado& otro : diagnostico.partes.relacionados)
        if (otro.texto == diagnostico.partes.hallado) enTodas.cambios.push_back({otro.rango, escrito, false});
    const std::size_t lugares = enTodas.cambios.size();
    if (lugares > 1) enTodas.titulo += u" en los " + aTexto(static_cast<std::int64_t>(lugares)) + u" lugares";
    arreglos.push_back(std::move(enTodas));
    return arreglos;
}

std::vector<Arreglo> curasDe(const LenguajeEstudiado& lenguaje, const HistoriaConflicto& historia) {
    switch (historia.cura) {
    case Cura::MetodoLalr:
        return metodo(lenguaje, Metodo::Lalr, u"lalr");
    case Cura::MetodoLr1:
        return metodo(lenguaje, Metodo::Lr1, u"lr1");
    case Cura::Asociatividad:
        return asociatividad(lenguaje, historia.simbolo);
    case Cura::Prioridad:
        return prioridad(lenguaje, historia);
    case Cura::SinoColgante:
        return dejaloAsi(lenguaje);
    case Cura::ListaDosVeces:
    case Cura::Ciclo:
    case Cura::DosVariables:
    case Cura::Factorizar:
    case Cura::Reescribir:
        return {};
    }
    return {};
}

} // namespace norvik::taller
