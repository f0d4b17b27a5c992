// SPDX-License-Identifier: MIT

#include "enControl.hpp"

#include "norvik/grammar/gramatica.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

namespace norvik::taller {

namespace {

void cargaTokens(const pilaTokens& lexico, Norvik& control) {
    control.LenguajeSensible(lexico.distingueMayusculas);
    if (lexico.distingueMayusculas) control.DistingueMayusculas();
    for (const expresionRegular* const d : lexico.tokensLenguaje())
        control.SetPatron(d->expresion, d->nomER, d->tipo, d->pseudoToken, d->base, sinColor);
}

void cargaGramatica(const gramatica& suya, Norvik& control) {
    const TablaLR& tabla = suya.valores().tabla;
    control.Gramatica().copiaReglas(suya);
    for (std::int16_t s = 1; s <= suya.simbolos().totalElementos(); ++s)
        control.InsertarSimboloGramatica(suya.simbolos().simboloAt(s));
    control.SetDimensionTablaSLR(suya.GetDimensionFilasSLR(), suya.GetDimensionColumnasSLR());
    for (std::int16_t fila = 1; fila <= tabla.filasVigentes(); ++fila)
        tabla.celdas().paraCadaEntrada(fila, tabla.columnasVigentes(),
                                       [&](std::int16_t columna, std::int16_t valor) {
                                           control.SetElementoTablaSLR(fila, columna, valor);
                                       });
}

std::size_t lugar(const Punto& punto) {
    return static_cast<std::size_t>(punto.desplazamiento);
}

/// A repair as one piece of text in the place of another.
struct Sustitucion {
    std::u16string nuevo;
    Seleccion queda;
};

Sustitucion sustitucionDe(const Arreglo& arreglo, std::u16string_view texto) {
    Sustitucion todo;
    const std::size_t inicio = lugar(arreglo.cambios.front().rango.inicio);
    std::size_t copiado = inicio;
    bool hayNombre = false;
    for (const Cambio& cambio : arreglo.cambios) {
        const QString puesto = conSaltosDeQt(aQString(cambio.texto)).replace(u'\n', QLatin1String("\r\n"));
        todo.nuevo.append(texto.substr(copiado, lugar(cambio.rango.inicio) - copiado));
        const auto aqui = static_cast<std::int32_t>(inicio + todo.nuevo.size());
        const auto largo = static_cast<std::int32_t>(puesto.size());
        if (!hayNombre) todo.queda = cambio.conNombres ? Seleccion{aqui, largo} : Seleccion{aqui + largo, 0};
        hayNombre = hayNombre || cambio.conNombres;
        todo.nuevo.append(vistaDe(puesto));
        copiado = lugar(cambio.rango.fin);
    }
    return todo;
}

} // namespace

void carga(const Lenguaje& lenguaje, ControlNorvik& norvik) {
    Norvik& control = norvik.control();
    const DatosDeLenguaje& datos = lenguaje.datos();
    control.OlvidaLenguaje();
    cargaTokens(datos.lexico, control);
    if (lenguaje.tieneGramatica()) cargaGramatica(datos.reglas, control);
    norvik.caja().protege([&] { control.ColoreaTodo(); });
}

void aplica(const Arreglo& arreglo, ControlNorvik& norvik) {
    if (arreglo.cambios.empty()) return;
    CajaTextoQt& caja = norvik.caja();
    caja.atiende([&] {
        const Sustitucion s = sustitucionDe(arreglo, caja.texto());
        const std::int32_t inicio = arreglo.cambios.front().rango.inicio.desplazamiento;
        caja.sustituye(inicio, arreglo.cambios.back().rango.fin.desplazamiento - inicio, s.nuevo, s.queda);
    });
}

} // namespace norvik::taller
