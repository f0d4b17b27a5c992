#include "norvik/base/ficheros.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/definicionDePatron.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/report/escritorLineas.hpp"

#include <algorithm>

// The loading module as a C++ header: the calls of the Visual Basic module in the same order, those of one
// kind as a table and a loop. The source is plain ASCII, whatever the language's texts are.
namespace norvik {

namespace {

std::u16string enBase(unsigned valor, unsigned base, std::size_t cifras) {
    std::u16string texto(cifras, u'0');
    for (auto cifra = texto.rbegin(); cifra != texto.rend(); ++cifra, valor /= base)
        *cifra = u"0123456789ABCDEF"[valor % base];
    return texto;
}

constexpr bool esSustituto(char16_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}

/// One character of a literal. Octal escapes end by themselves; a hexadecimal one (a half of a surrogate
/// pair, which has no other) needs the literal to be closed behind it. "?" could begin a trigraph.
std::u16string escapa(char16_t c) {
    if (c == u'"' || c == u'\\' || c == u'?') return {u'\\', c};
    if (esSustituto(c)) return u"\\x" + enBase(c, 16, 4) + u"\" u\"";
    if (c >= 0xA0) return u"\\u" + enBase(c, 16, 4);
    if (c < 0x20 || c >= 0x7F) return u'\\' + enBase(c, 8, 3);
    return {c};
}

std::u16string literal(std::u16string_view texto) {
    std::u16string resultado = u"u\"";
    for (const char16_t c : texto) resultado += escapa(c);
    return resultado + u"\"sv";
}

std::u16string identificador(std::u16string_view nombre) {
    std::u16string resultado;
    for (const char16_t c : nombre) resultado += c < 0x80 ? std::u16string(1, c) : escapa(c);
    return resultado;
}

/// A table of texts and the loop that passes them on. An array has at least one element: none, no loop.
void escribeTextos(EscritorLineas& salida, std::u16string_view tabla, std::u16string_view operacion,
                   const std::vector<std::u16string>& textos) {
    if (textos.empty()) return;
    salida.escribe();
    salida.escribe(u"    static constexpr std::u16string_view ", tabla, u"[] = {");
    for (const std::u16string& elemento : textos) salida.escribe(u"        ", literal(elemento), u",");
    salida.escribe(u"    };");
    salida.escribe(u"    for (const auto elemento : ", tabla, u") control.", operacion, u"(elemento);");
}

void escribeTokens(EscritorLineas& salida, const pilaTokens& lexico) {
    for (std::int16_t i = 1; i <= lexico.getNumTokensLenguaje(); ++i) {
        const expresionRegular& token = lexico.getTokenLenguaje(i);
        salida.escribe(u"    control.SetER(", literal(definicionDePatron(token.getExpReg())), u", ",
                       literal(token.GetToken()), u", true, norvik::TipoExpReg{", token.GetTipo(), u"}, ",
                       literal(token.GetPseudoToken()), u", norvik::baseNumerica{", token.base, u"}, ",
                       token.GetColor(), u");");
    }
}

} // namespace

void gramatica::escribeTablaCpp(EscritorLineas& salida) const {
    salida.escribe();
    salida.escribe(u"    control.SetDimensionTablaSLR(", filasVigentes(), u", ", simbolos_.totalElementos(),
                   u");");
    bool abierta = false;
    const auto escribe = [&](std::int16_t fila, std::int16_t columna, std::int16_t valor) {
        if (!abierta) salida.escribe(u"    static constexpr short entradas[][3] = {");
        abierta = true;
        salida.escribe(u"        {", fila, u", ", columna, u", ", valor, u"},");
    };
    for (const auto& [fila, columna, valor] : celdasFijas()) escribe(fila, columna, valor);
    for (std::int16_t f = 1; f <= filasVigentes(); ++f) {
        tabla_.paraCadaEntrada(f, columnasVigentes(),
                               [&](std::int16_t columna, std::int16_t valor) { escribe(f, columna, valor); });
    }
    if (!abierta) return;
    salida.escribe(u"    };");
    salida.escribe(u"    for (const auto& [fila, columna, valor] : entradas)");
    salida.escribe(u"        control.SetElementoTablaSLR(fila, columna, valor);");
}

void gramatica::escribeModuloCpp(std::u16string_view nombre, const pilaTokens& lexico,
                                 const SumideroDeTexto& sumidero) const {
    std::vector<std::u16string> reglas;
    const std::int16_t total = getNumReglas();
    for (std::int16_t r = 1; r <= total; ++r)
        reglas.push_back(std::u16string(GetLeftRegla(r)).append(u" -> ").append(GetRightRegla(r)));
    std::vector<std::u16string> simbolos;
    for (std::int16_t c = 1; c <= simbolos_.totalElementos(); ++c)
        simbolos.emplace_back(encabezadoColumna(c));

    EscritorLineas salida(sumidero);
    salida.escribe(u"// Carga del lenguaje ", identificador(nombre), u": llame a ", identificador(nombre),
                   u"::CargaLenguaje(control).");
    salida.escribe(u"#pragma once");
    salida.escribe();
    salida.escribe(u"#include \"norvik/control/norvik.hpp\"");
    salida.escribe();
    salida.escribe(u"namespace ", identificador(nombre), u" {");
    salida.escribe();
    salida.escribe(u"inline void CargaLenguaje(norvik::Norvik& control) {");
    salida.escribe(u"    using namespace std::string_view_literals;");
    escribeTokens(salida, lexico);
    escribeTextos(salida, u"reglas", u"SetRegla", reglas);
    escribeTablaCpp(salida);
    escribeTextos(salida, u"simbolos", u"InsertarSimboloGramatica", simbolos);
    salida.escribe(u"}");
    salida.escribe();
    salida.escribe(u"} // namespace ", identificador(nombre));
    salida.acaba();
}

std::u16string gramatica::textoModuloCpp(std::u16string_view nombre, const pilaTokens& lexico) const {
    return deUnaPieza([&](const SumideroDeTexto& sumidero) { escribeModuloCpp(nombre, lexico, sumidero); });
}

void gramatica::GuardaModuloCpp(std::u16string_view nombre, const pilaTokens& lexico,
                                const std::filesystem::path& carpeta) const {
    const auto piezas = [&](const SumideroDeTexto& sumidero) { escribeModuloCpp(nombre, lexico, sumidero); };
    escribeTexto(carpeta / (aUtf8(nombre) + ".hpp"), piezas, Durabilidad::Normal);
}

} // namespace norvik
