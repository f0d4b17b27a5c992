// SPDX-License-Identifier: MIT

#include "norvik/report/informe.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/report/escritorLineas.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

// The report on a grammar, as a file and as the parts that a window shows, and the list of conflicts. All of
// them are made of the same pieces.
namespace norvik::inline v0_2 {

namespace {

constexpr std::u16string_view sangria = u"    ";
constexpr std::u16string_view nota = u"(NOTA: El símbolo 'Ø' representa la cadena vacía)";
const std::u16string rayaDeSeccion(48, u'-');
const std::u16string barras(110, u'/');

void escribeSeparador(EscritorLineas& salida) {
    salida.escribe(rayaDeSeccion);
    salida.escribe();
}

// Rules and sets -------------------------------------------------------------------------------------------

void escribeReglas(const GramaticaLR& g, EscritorLineas& salida) {
    salida.escribe(u"Informe sobre la gramática actual:");
    salida.escribe();
    salida.escribe();
    salida.escribe(u"Reglas de la Gramática:");
    salida.escribe();
    int i = 0;
    for (const Regla& regla : g.reglas) salida.escribe(++i, u".\t", regla.cabeza, u" -> ", regla.cuerpo);
    salida.escribe();
    salida.escribe();
}

void escribeConjuntos(const GramaticaLR& g, std::u16string_view titulo, std::u16string_view nombre,
                      const std::vector<ConjuntoNumerado>& conjuntos, EscritorLineas& salida) {
    salida.escribe();
    salida.escribe(titulo);
    salida.escribe();
    for (const ConjuntoNumerado& conjunto : conjuntos)
        salida.escribe(nombre, u"(", g.partidas.texto(conjunto.nombre), u") = {",
                       enTexto(conjunto, g.partidas), u"}");
    salida.escribe();
    salida.escribe();
}

void escribePredict(const GramaticaLR& g, EscritorLineas& salida) {
    salida.escribe(u"Conjuntos Predict:");
    salida.escribe();
    std::int16_t k = 0;
    for (const ConjuntoNumerado& conjunto : g.conjuntos.predict) {
        const auto& [cabeza, cuerpo, elementos] = g.reglas.en(++k);
        salida.escribe(u"PREDICT(", cabeza, u" -> ", cuerpo, u")  =  {", enTexto(conjunto, g.partidas), u"}");
    }
    salida.escribe();
    salida.escribe();
}

} // namespace

std::u16string textoInformeGeneral(const GramaticaLR& g) {
    return textoDeLineas([&](EscritorLineas& salida) {
        escribeReglas(g, salida);
        escribeConjuntos(g, u"Conjuntos Primeros:", u"PRIMEROS", g.conjuntos.primeros, salida);
        escribeConjuntos(g, u"Conjuntos Siguientes:", u"SIGUIENTES", g.conjuntos.siguientes, salida);
        escribePredict(g, salida);
        salida.escribe(u"Símbolos terminales: ", g.tabla.simbolos().terminales.toStringConjunto());
        salida.escribe(u"Símbolos no terminales: ", g.tabla.simbolos().variables.toStringConjunto());
        salida.escribe(nota);
    });
}

// Automaton ------------------------------------------------------------------------------------------------

namespace {

void escribeTransiciones(const GramaticaLR& g, const estadoAutomata& estado, EscritorLineas& salida) {
    const auto haySalida = [](std::int16_t adyacente) { return adyacente != estadoAutomata::sinTransicion; };
    if (estado.getNumEstado() != 0 && std::ranges::none_of(estado.adyacentes(), haySalida)) return;
    salida.escribe(u"Transiciones:");
    if (estado.getNumEstado() == 0) salida.escribe(sangria, g.reglas.en(1).cabeza, u" -> ", 1);
    std::vector<bool> vistos(g.partidas.numSimbolos());
    for (std::size_t i = 0; i < estado.items().size(); ++i) {
        if (!haySalida(estado.adyacentes()[i])) continue;
        const auto [regla, punto] = estado.items()[i];
        const Simbolo siguiente = g.partidas.cuerpo(regla)[static_cast<std::size_t>(punto)];
        if (vistos[static_cast<std::size_t>(siguiente)]) continue;
        vistos[static_cast<std::size_t>(siguiente)] = true;
        salida.escribe(sangria, g.partidas.texto(siguiente), u" -> ", estado.adyacentes()[i]);
    }
}

void escribeEstado(const GramaticaLR& g, const estadoAutomata& estado, EscritorLineas& salida) {
    const std::u16string_view inicial = g.reglas.en(1).cabeza;
    salida.escribe(u"Estado ", estado.getNumEstado(), u":");
    salida.escribe();
    if (estado.getNumEstado() == 0) salida.escribe(sangria, inicial, u"' -> .", inicial);
    if (estado.getNumEstado() == 1) salida.escribe(sangria, inicial, u"' -> ", inicial, u".");
    for (const auto [numero, punto] : estado.items()) {
        const Regla& regla = g.reglas.en(numero);
        const std::u16string cuerpo =
            g.partidas.esVacia(numero) ? std::u16string(u".") : dameReglaString(regla.cuerpo, punto);
        salida.escribe(sangria, regla.cabeza, u" -> ", cuerpo);
    }
    escribeTransiciones(g, estado, salida);
    escribeSeparador(salida);
}

} // namespace

std::u16string textoAutomata(const GramaticaLR& g) {
    return textoDeLineas([&](EscritorLineas& salida) {
        for (const estadoAutomata& estado : g.automata.estados) escribeEstado(g, estado, salida);
    });
}

// Table ----------------------------------------------------------------------------------------------------

namespace {

/// An entry of a terminal's column: D5 or R3, and the rule that lost a conflict with it.
std::u16string accion(const TablaLR& tabla, std::int16_t fila, std::int16_t columna) {
    const std::int16_t valor = tabla.celdas().en(fila, columna);
    std::u16string texto = valor > 0 ? u"D" + aTexto(valor) : u"R" + aTexto(-valor);
    if (const std::int16_t perdedora = tabla.conflicto(fila, columna); perdedora != 0)
        texto += u" / R" + aTexto(perdedora);
    return texto;
}

} // namespace

std::u16string celdaTabla(const TablaLR& tabla, std::int16_t fila, std::int16_t columna) {
    const std::int16_t valor = tabla.celdas().en(fila, columna);
    if (fila == 1 && columna == tabla.codigoInicial() + 1) return u"1";
    if (fila == 2 && columna == tabla.codigoFin() + 1) return u"ACEPTAR";
    if (valor == 0) return {};
    return tabla.esColumnaDeVariable(columna) ? aTexto(valor) : accion(tabla, fila, columna);
}

namespace {

void escribeEntrada(const TablaLR& tabla, std::int16_t fila, std::int16_t columna, EscritorLineas& salida) {
    if (tabla.enConflicto(fila, columna))
        salida.escribe(u"tablaSLR[", fila - 1, u"][", columna - 1, u"]= ", accion(tabla, fila, columna),
                       u";");
    else
        salida.escribe(sangria, u"tablaSLR[", fila - 1, u"][", columna - 1, u"] = ",
                       tabla.celdas().en(fila, columna), u";");
}

void escribeTabla(const TablaLR& tabla, EscritorLineas& salida) {
    const std::int16_t total = tabla.simbolos().todos.totalElementos();
    salida.escribe(u"//Simbolos:");
    for (std::int16_t c = 1; c <= total; ++c) salida.escribe(u"columna ", c - 1, u" = ", tabla.simbolo(c));
    salida.escribe();
    salida.escribe(u"//Tabla: (Desplazamientos: números positivos. Reducciones: números negativos)");
    if (const int c = tabla.codigoInicial(); c >= 0) salida.escribe(sangria, u"tablaSLR[0][", c, u"] = 1");
    if (const int c = tabla.codigoFin(); c >= 0) salida.escribe(sangria, u"tablaSLR[1][", c, u"] = ACEPTAR");
    for (std::int16_t f = 1; f <= tabla.filasVigentes(); ++f)
        tabla.celdas().paraCadaEntrada(
            f, tabla.columnasVigentes(),
            [&](std::int16_t columna, std::int16_t /*valor*/) { escribeEntrada(tabla, f, columna, salida); });
}

} // namespace

// The whole file -------------------------------------------------------------------------------------------

void escribeInforme(const GramaticaLR& g, const SumideroDeTexto& sumidero) {
    EscritorLineas salida(sumidero);
    escribeReglas(g, salida);
    escribeSeparador(salida);
    escribeConjuntos(g, u"Conjuntos Primeros:", u"PRIMEROS", g.conjuntos.primeros, salida);
    escribeSeparador(salida);
    escribeConjuntos(g, u"Conjuntos Siguientes:", u"SIGUIENTES", g.conjuntos.siguientes, salida);
    escribeSeparador(salida);
    escribePredict(g, salida);
    salida.escribe(nota);
    salida.escribe();
    salida.escribe(barras);
    salida.escribe();
    salida.escribe(u"Especificación del automata:");
    salida.escribe();
    salida.escribe();
    for (const estadoAutomata& estado : g.automata.estados) escribeEstado(g, estado, salida);
    salida.escribe(barras);
    salida.escribe();
    salida.escribe();
    salida.escribe(u"//Tabla SLR:");
    salida.escribe();
    salida.escribe(u"//A continuación se hace un inciso acerca de qué símbolos pertenecen a");
    salida.escribe(u"//cada índice j (siendo la dimensión tipo [i][j]) de la tabla SLR detallada.");
    salida.escribe();
    escribeTabla(g.tabla, salida);
    salida.escribe(barras);
    salida.acaba();
}

std::u16string textoInforme(const GramaticaLR& g) {
    return deUnaPieza([&](const SumideroDeTexto& sumidero) { escribeInforme(g, sumidero); });
}

void guardaInforme(const GramaticaLR& g, const std::filesystem::path& carpeta) {
    const auto piezas = [&](const SumideroDeTexto& sumidero) { escribeInforme(g, sumidero); };
    escribeTexto(carpeta / "informeGramatica.txt", piezas, Durabilidad::Normal);
}

// Conflicts ------------------------------------------------------------------------------------------------

namespace {

void escribeProblemas(const TablaLR& tabla, std::int16_t fila, EscritorLineas& salida) {
    bool vacia = true;
    for (std::int16_t c = 1; c < tabla.columnasVigentes(); ++c) {
        if (tabla.celdas().en(fila, c) == 0) continue;
        vacia = false;
        if (tabla.enConflicto(fila, c))
            salida.escribe(u"Conflicto ", celdaTabla(tabla, fila, c), u" en el estado ", fila - 1,
                           u", símbolo ", tabla.simbolo(c), u".");
    }
    if (vacia)
        salida.escribe(u"La fila ", fila - 1, u" de la tabla SLR correspondiente al estado ", fila - 1,
                       u" del automata no posee ni desplazamientos ni reducciones.");
}

} // namespace

// Row 2 holds the acceptance, the last column is not looked at.
std::u16string textoProblemas(const GramaticaLR& g) {
    const std::u16string problemas = textoDeLineas([&](EscritorLineas& salida) {
        const auto filas = std::min<std::size_t>(g.automata.estados.size(),
                                                 static_cast<std::size_t>(g.tabla.celdas().filas()));
        for (std::int16_t fila = 1; static_cast<std::size_t>(fila) <= filas; ++fila)
            if (fila != 2) escribeProblemas(g.tabla, fila, salida);
    });
    if (problemas.empty()) return u"La gramática carece de problema alguno.";
    return std::u16string(u"Problemas detectados:").append(saltoDeLinea).append(saltoDeLinea) + problemas;
}

} // namespace norvik::inline v0_2
