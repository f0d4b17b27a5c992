// SPDX-License-Identifier: MIT

#include "palabrasConjuntos.hpp"

#include "palabrasLR.hpp"

#include "norvik/platform/qt/conversiones.hpp"

#include <algorithm>
#include <vector>

namespace norvik::taller {

namespace {

/// The first of those with a name is the one that is looked up.
const ConjuntoNumerado* conjuntoDe(const std::vector<ConjuntoNumerado>& lista, Simbolo nombre) {
    const auto sitio = std::ranges::find(lista, nombre, &ConjuntoNumerado::nombre);
    return sitio == lista.end() ? nullptr : &*sitio;
}

QString elementosDe(const std::vector<ConjuntoNumerado>& lista, Simbolo nombre,
                    const ReglasPartidas& reglas) {
    const ConjuntoNumerado* const conjunto = conjuntoDe(lista, nombre);
    return conjunto == nullptr ? QString() : aQString(enTexto(*conjunto, reglas));
}

QString reglasDe(const GramaticaLR& g, Simbolo variable) {
    QString lineas;
    for (int regla = 1; regla <= g.partidas.numReglas(); ++regla)
        if (g.partidas.cabeza(regla) == variable)
            lineas +=
                QStringLiteral("\n    ") + aQString(palabrasDeRegla(g, static_cast<std::int16_t>(regla)));
    return lineas;
}

} // namespace

QString primerosDe(const GramaticaLR& gramatica, Simbolo variable) {
    return elementosDe(gramatica.conjuntos.primeros, variable, gramatica.partidas);
}

QString siguientesDe(const GramaticaLR& gramatica, Simbolo variable) {
    return elementosDe(gramatica.conjuntos.siguientes, variable, gramatica.partidas);
}

bool esAnulable(const GramaticaLR& gramatica, Simbolo variable) {
    const ConjuntoNumerado* const conjunto = conjuntoDe(gramatica.conjuntos.primeros, variable);
    return conjunto != nullptr && std::ranges::count(conjunto->elementos, ReglasPartidas::vacio) > 0;
}

QString conjuntosEnPalabras(const GramaticaLR& gramatica, Simbolo variable) {
    return QStringLiteral("Primeros(%1) = { %2 }\n\nSiguientes(%1) = { %3 }\n\nReglas:%4")
        .arg(aQString(gramatica.partidas.texto(variable)), primerosDe(gramatica, variable),
             siguientesDe(gramatica, variable), reglasDe(gramatica, variable));
}

} // namespace norvik::taller
