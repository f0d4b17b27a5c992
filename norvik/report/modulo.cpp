// SPDX-License-Identifier: MIT

#include "norvik/report/modulo.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/report/celdasFijas.hpp"
#include "norvik/report/escritorLineas.hpp"
#include "norvik/report/nombreDeModulo.hpp"

#include <cstdint>

// The loading module as Visual Basic source: the definitions, the rules, the table and its symbols as calls
// on a control. A procedure takes 2000 entries of the table; the next entry opens another, which the first
// calls as its last statement.
namespace norvik::inline v0_2 {

namespace {

constexpr int maximoEntradas = 2000;
constexpr std::u16string_view llamada = u"\tNorvikRefParam.";

/// A literal in which every quote is joined in by its code.
std::u16string literalBasic(std::u16string_view texto) {
    std::u16string resultado = u"\"";
    for (const char16_t c : texto) {
        if (c == u'"')
            resultado += u"\" & Chr$(34) & \"";
        else
            resultado += c;
    }
    return resultado + u'"';
}

void abreProcedimiento(EscritorLineas& salida, std::u16string_view nombre) {
    salida.escribe();
    salida.escribe(u"Public Sub ", nombre, u"(NorvikRefParam As Norvik)");
    salida.escribe();
}

void cierraProcedimiento(EscritorLineas& salida) {
    salida.escribe();
    salida.escribe(u"End Sub");
}

/// Closes a procedure with a call of the next one, and opens that.
void abreOtroProcedimiento(EscritorLineas& salida, std::u16string_view nombre, int numero) {
    const std::u16string otro = u"CargaLenguaje" + aTexto(numero);
    salida.escribe();
    salida.escribe(u"\t", nombre, u".", otro, u" NorvikRefParam");
    cierraProcedimiento(salida);
    abreProcedimiento(salida, otro);
}

void escribeCabecera(EscritorLineas& salida, std::u16string_view nombre) {
    const std::u16string raya = u'\'' + std::u16string(110, u'/');
    salida.escribe(u"Attribute VB_Name = \"", nombre, u"\"");
    salida.escribe(u"Option Explicit");
    salida.escribe(raya);
    salida.escribe(u"' Módulo de carga del lenguaje ", nombre);
    salida.escribe(u"'");
    salida.escribe(u"'\tpara ejecutar escriba ", nombre, u".CargaLenguaje(NorvikControl)");
    salida.escribe(u"'\tsiendo NorvikControl en control Norvik donde desea inyectar el lenguaje.");
    salida.escribe(u"'");
    salida.escribe(raya);
    abreProcedimiento(salida, u"CargaLenguaje");
    salida.escribe(u"\t'Esta función carga la tabla SLR en un control Norvik");
    salida.escribe(u"\t'que ha sido pasado por referencia como parámetro.");
    salida.escribe();
    salida.escribe(u"\t", nombre, u".CargaTokensLenguaje NorvikRefParam");
    salida.escribe(u"\t", nombre, u".CargaGramaticaLenguaje NorvikRefParam");
}

void escribeTokens(EscritorLineas& salida, const pilaTokens& lexico) {
    abreProcedimiento(salida, u"CargaTokensLenguaje");
    salida.escribe();
    salida.escribe(u"'Función para cargar las definiciones léxicas de los tokens del lenguaje:");
    salida.escribe();
    if (lexico.distingueMayusculas) salida.escribe(llamada, u"LenguajeSensible = True");
    for (std::int16_t i = 1; i <= lexico.getNumTokensLenguaje(); ++i) {
        const expresionRegular& token = lexico.getTokenLenguaje(i);
        salida.escribe(llamada, u"SetER ", literalBasic(token.getExpReg()), u", \"", token.GetToken(),
                       u"\", True, ", token.GetTipo(), u", \"", token.GetPseudoToken(), u"\", ", token.base,
                       u", ", token.GetColor());
    }
    cierraProcedimiento(salida);
    salida.escribe();
    salida.escribe();
}

void escribeElemento(EscritorLineas& salida, std::int16_t fila, std::int16_t columna, std::int16_t valor) {
    salida.escribe(llamada, u"SetElementoTablaSLR ", fila, u", ", columna, u", ", valor);
}

void escribeEntradas(const TablaLR& tabla, EscritorLineas& salida, std::u16string_view nombre) {
    int entradas = 0;
    int procedimiento = 0;
    for (std::int16_t f = 1; f <= tabla.filasVigentes(); ++f) {
        tabla.celdas().paraCadaEntrada(f, tabla.columnasVigentes(),
                                       [&](std::int16_t columna, std::int16_t valor) {
                                           if (entradas == maximoEntradas) {
                                               abreOtroProcedimiento(salida, nombre, ++procedimiento);
                                               entradas = 0;
                                           }
                                           escribeElemento(salida, f, columna, valor);
                                           ++entradas;
                                       });
    }
}

void escribeSimbolos(const TablaLR& tabla, EscritorLineas& salida) {
    salida.escribe();
    for (std::int16_t c = 1; c <= tabla.simbolos().todos.totalElementos(); ++c)
        salida.escribe(llamada, u"InsertarSimboloGramatica \"", tabla.simbolo(c), u"\"");
}

void escribeReglas(const Reglas& reglas, EscritorLineas& salida, std::u16string_view nombre) {
    abreProcedimiento(salida, u"CargaGramaticaLenguaje");
    salida.escribe();
    salida.escribe(u"'Función para cargar las reglas del lenguaje ", nombre);
    salida.escribe();
    for (std::int16_t r = 1; r <= reglas.numReglas(); ++r)
        salida.escribe(llamada, u"SetRegla \"", recorta(reglas.en(r).cabeza), u" -> ", reglas.en(r).cuerpo,
                       u"\"");
    cierraProcedimiento(salida);
    salida.escribe();
    salida.escribe();
}

} // namespace

void escribeModulo(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico,
                   const SumideroDeTexto& sumidero) {
    compruebaNombreDeModulo(nombre, LenguajeModulo::Vb);
    EscritorLineas salida(sumidero);
    escribeCabecera(salida, nombre);
    salida.escribe(llamada, u"SetDimensionTablaSLR ", g.tabla.filasVigentes(), u", ",
                   g.tabla.simbolos().todos.totalElementos());
    salida.escribe();
    for (const auto& [fila, columna, valor] : celdasFijas(g.tabla))
        escribeElemento(salida, fila, columna, valor);
    escribeEntradas(g.tabla, salida, nombre);
    escribeSimbolos(g.tabla, salida);
    cierraProcedimiento(salida);
    salida.escribe();
    escribeTokens(salida, lexico);
    escribeReglas(g.reglas, salida, nombre);
    salida.acaba();
}

std::u16string textoModulo(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico) {
    return deUnaPieza([&](const SumideroDeTexto& sumidero) { escribeModulo(g, nombre, lexico, sumidero); });
}

void guardaModulo(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico,
                  const std::filesystem::path& carpeta) {
    compruebaNombreDeModulo(nombre, LenguajeModulo::Vb);
    const auto piezas = [&](const SumideroDeTexto& sumidero) { escribeModulo(g, nombre, lexico, sumidero); };
    escribeTexto(carpeta / (aUtf8(nombre) + ".bas"), piezas, Durabilidad::Normal);
}

} // namespace norvik::inline v0_2
