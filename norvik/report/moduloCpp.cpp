// SPDX-License-Identifier: MIT

#include "norvik/report/moduloCpp.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/report/celdasFijas.hpp"
#include "norvik/report/escritorLineas.hpp"
#include "norvik/report/identificadorCpp.hpp"
#include "norvik/report/nombreDeModulo.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

// The loading module as a C++ header: what the calls of the Visual Basic module pass, in the same order, as
// constants; the numbers of the nodes of trees as enumerations; and a function for the control and one for
// the language as a value. The source is plain ASCII, whatever the language's texts are.
namespace norvik::inline v0_2 {

namespace {

std::u16string enOctal(char16_t c) {
    const auto cifra = [c](int lugar) { return static_cast<char16_t>(u'0' + ((c >> (3 * lugar)) & 7)); };
    return {cifra(2), cifra(1), cifra(0)};
}

constexpr bool esSustituto(char16_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}

/// One character of a literal. Octal escapes end by themselves; a hexadecimal one (a half of a surrogate
/// pair, which has no other) needs the literal to be closed behind it. "?" could begin a trigraph.
std::u16string escapa(char16_t c) {
    if (c == u'"' || c == u'\\' || c == u'?') return {u'\\', c};
    if (esSustituto(c)) return u"\\x" + enHexadecimal(c) + u"\" u\"";
    if (c >= 0xA0) return u"\\u" + enHexadecimal(c);
    if (c < 0x20 || c >= 0x7F) return u'\\' + enOctal(c);
    return {c};
}

std::u16string literalCpp(std::u16string_view texto) {
    std::u16string resultado = u"u\"";
    for (const char16_t c : texto) resultado += escapa(c);
    return resultado + u"\"sv";
}

void escribePrincipio(EscritorLineas& salida, std::u16string_view nombre) {
    salida.escribe(u"// Lenguaje ", nombre, u". En un control: ", nombre,
                   u"::CargaLenguaje(control). Un control que");
    salida.escribe(u"// tiene otro lenguaje necesita antes control.OlvidaLenguaje(). Como valor: ", nombre,
                   u"::lenguaje().");
    salida.escribe(u"#pragma once");
    salida.escribe();
    salida.escribe(u"#include \"norvik/spec/datosLenguaje.hpp\"");
    salida.escribe(u"#include \"norvik/spec/lenguaje.hpp\"");
    salida.escribe();
    salida.escribe(u"namespace ", nombre, u" {");
    salida.escribe();
    salida.escribe(
        u"// Los numeros que llevan los nodos de los arboles. E_1 es la primera regla de E. En un nombre,");
    salida.escribe(
        u"// _uHHHH es un caracter que C++ no admite ahi, por su numero; acaba en _ el que C++ reserva.");
}

template <typename Elementos, typename Nombre>
void escribeEnumeracion(EscritorLineas& salida, std::u16string_view tipo, const Elementos& elementos,
                        const Nombre& nombreDe) {
    salida.escribe(u"enum class ", tipo, u" : short {");
    std::size_t numero = 0;
    for (const auto& elemento : elementos)
        salida.escribe(u"    ", nombreDe(elemento), u" = ", ++numero, u",");
    salida.escribe(u"};");
    salida.escribe();
}

void escribeEnumeraciones(EscritorLineas& salida, const Vocabulario& vocabulario) {
    escribeEnumeracion(salida, u"Token", vocabulario.tokens,
                       [](const Vocabulario::Token& token) { return identificadorCpp(token.nombre); });
    escribeEnumeracion(salida, u"Variable", vocabulario.variables,
                       [](const std::u16string& variable) { return identificadorCpp(variable); });
    escribeEnumeracion(salida, u"Regla", vocabulario.reglas, [](const Vocabulario::Regla& regla) {
        return identificadorCpp(regla.cabeza, regla.ordinal);
    });
}

// An array has at least one element: nothing is written of one that would have none, and false given.
template <typename Elementos, typename Escritura>
bool escribeConstante(EscritorLineas& salida, std::u16string_view tipo, std::u16string_view nombre,
                      const Elementos& elementos, const Escritura& escribe) {
    if (elementos.empty()) return false;
    salida.escribe(u"inline constexpr ", tipo, u" ", nombre, u"[] = {");
    for (const auto& elemento : elementos) escribe(elemento);
    salida.escribe(u"};");
    return true;
}

bool escribeTextos(EscritorLineas& salida, std::u16string_view nombre,
                   const std::vector<std::u16string>& textos) {
    return escribeConstante(salida, u"std::u16string_view", nombre, textos, [&](const std::u16string& texto) {
        salida.escribe(u"    ", literalCpp(texto), u",");
    });
}

bool escribeDefiniciones(EscritorLineas& salida, const pilaTokens& lexico) {
    return escribeConstante(salida, u"norvik::DatosLenguaje::Definicion", u"definiciones",
                            lexico.tokensLenguaje(), [&](const expresionRegular* d) {
                                salida.escribe(u"    {", literalCpp(d->getExpReg()), u", ",
                                               literalCpp(d->GetToken()), u", ", d->GetTipo(), u", ",
                                               literalCpp(d->GetPseudoToken()), u", ", d->base, u", ",
                                               d->GetColor(), u"},");
                            });
}

void escribeFunciones(EscritorLineas& salida) {
    salida.escribe();
    salida.escribe(u"inline void CargaLenguaje(norvik::CargadorLenguaje& control) {");
    salida.escribe(u"    norvik::CargaLenguaje(datos, control);");
    salida.escribe(u"}");
    salida.escribe();
    salida.escribe(u"inline const norvik::Lenguaje& lenguaje() {");
    salida.escribe(u"    static const norvik::Lenguaje unico = norvik::Lenguaje::de(datos);");
    salida.escribe(u"    return unico;");
    salida.escribe(u"}");
}

std::vector<CeldaSLR> celdasVigentes(const TablaLR& tabla) {
    std::vector<CeldaSLR> celdas = celdasFijas(tabla);
    for (std::int16_t f = 1; f <= tabla.filasVigentes(); ++f) {
        tabla.celdas().paraCadaEntrada(f, tabla.columnasVigentes(),
                                       [&](std::int16_t columna, std::int16_t valor) {
                                           celdas.push_back({f, columna, valor});
                                       });
    }
    return celdas;
}

void escribeDatos(const GramaticaLR& g, EscritorLineas& salida, const pilaTokens& lexico) {
    std::vector<std::u16string> reglas;
    for (std::int16_t r = 1; r <= g.reglas.numReglas(); ++r)
        reglas.push_back(
            std::u16string(recorta(g.reglas.en(r).cabeza)).append(u" -> ").append(g.reglas.en(r).cuerpo));
    std::vector<std::u16string> simbolos;
    for (std::int16_t c = 1; c <= g.tabla.simbolos().todos.totalElementos(); ++c)
        simbolos.emplace_back(g.tabla.simbolo(c));

    salida.escribe(u"namespace tablas {");
    salida.escribe(u"using namespace std::string_view_literals;");
    const bool hayDefiniciones = escribeDefiniciones(salida, lexico);
    const bool hayReglas = escribeTextos(salida, u"reglas", reglas);
    const bool hayCeldas = escribeConstante(
        salida, u"norvik::CeldaSLR", u"celdas", celdasVigentes(g.tabla), [&](const CeldaSLR& celda) {
            salida.escribe(u"    {", celda.fila, u", ", celda.columna, u", ", celda.valor, u"},");
        });
    const bool haySimbolos = escribeTextos(salida, u"simbolos", simbolos);
    salida.escribe(u"} // namespace tablas");
    salida.escribe();
    const auto tabla = [](bool hay, std::u16string_view nombre) {
        return hay ? u"tablas::" + std::u16string(nombre) : u"{}";
    };
    salida.escribe(u"inline constexpr norvik::DatosLenguaje datos{");
    salida.escribe(u"    ", tabla(hayDefiniciones, u"definiciones"), u", ", tabla(hayReglas, u"reglas"),
                   u", ", g.tabla.filasVigentes(), u", ", simbolos.size(), u", ", tabla(hayCeldas, u"celdas"),
                   u", ", tabla(haySimbolos, u"simbolos"), lexico.distingueMayusculas ? u", true" : u"",
                   u"};");
}

} // namespace

void escribeModuloCpp(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico,
                      const SumideroDeTexto& sumidero) {
    compruebaNombreDeModulo(nombre, LenguajeModulo::Cpp);
    const std::u16string espacio = nombreUniversal(nombre);
    EscritorLineas salida(sumidero);
    escribePrincipio(salida, espacio);
    escribeEnumeraciones(salida, vocabularioDe(lexico, g.reglas));
    escribeDatos(g, salida, lexico);
    escribeFunciones(salida);
    salida.escribe();
    salida.escribe(u"} // namespace ", espacio);
    salida.acaba();
}

std::u16string textoModuloCpp(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico) {
    return deUnaPieza(
        [&](const SumideroDeTexto& sumidero) { escribeModuloCpp(g, nombre, lexico, sumidero); });
}

void guardaModuloCpp(const GramaticaLR& g, std::u16string_view nombre, const pilaTokens& lexico,
                     const std::filesystem::path& carpeta) {
    compruebaNombreDeModulo(nombre, LenguajeModulo::Cpp);
    const auto piezas = [&](const SumideroDeTexto& sumidero) {
        escribeModuloCpp(g, nombre, lexico, sumidero);
    };
    escribeTexto(carpeta / (aUtf8(nombre) + ".hpp"), piezas, Durabilidad::Normal);
}

} // namespace norvik::inline v0_2
