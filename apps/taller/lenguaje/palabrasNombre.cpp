// SPDX-License-Identifier: MIT

#include "palabrasNombre.hpp"

#include "palabrasConjuntos.hpp"

#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"

#include <QStringList>

namespace norvik::taller {

namespace {

constexpr qsizetype maximoLinea = 300; // for a person to look at

QString acortada(const QString& linea) {
    return linea.size() > maximoLinea ? linea.left(maximoLinea) + u'…' : linea;
}

QString palabrasDeDefinicion(const expresionRegular& definicion) {
    const bool esToken = !definicion.nomToken.empty();
    QString texto = aQString(definicion.nomER) +
                    (esToken ? QStringLiteral(": token") : QStringLiteral(": expresión regular"));
    if (esToken && !definicion.pseudoToken.empty())
        texto += QStringLiteral(", «%1»").arg(aQString(definicion.pseudoToken));
    return texto + QStringLiteral("\nPatrón: ") + acortada(aQString(definicion.expresion));
}

QString palabrasDeVariable(const GramaticaLR& g, Simbolo variable) {
    QStringList lineas = conjuntosEnPalabras(g, variable).split(u'\n', Qt::SkipEmptyParts);
    constexpr qsizetype maximoLineas = 16;
    if (lineas.size() > maximoLineas) lineas = lineas.first(maximoLineas) << QStringLiteral("…");
    for (QString& linea : lineas) linea = acortada(linea);
    return lineas.join(u'\n');
}

} // namespace

QString palabrasDeNombre(const LenguajeEstudiado& lenguaje, std::u16string_view nombre) {
    if (!lenguaje.lenguaje) return {};
    if (const auto* const suyas = lenguaje.lenguaje->datos().lexico.definiciones().llamadas(nombre)) {
        QStringList lineas;
        for (const expresionRegular* const definicion : *suyas) lineas += palabrasDeDefinicion(*definicion);
        return lineas.join(u'\n');
    }
    const GramaticaLR* const g = lenguaje.gramatica();
    const Simbolo variable = g == nullptr ? ReglasPartidas::sinSimbolo : g->partidas.simbolo(nombre);
    const bool hayReglas = variable != ReglasPartidas::sinSimbolo && g->partidas.primera(variable) != 0;
    return hayReglas ? palabrasDeVariable(*g, variable) : QString();
}

} // namespace norvik::taller
