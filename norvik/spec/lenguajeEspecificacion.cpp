// SPDX-License-Identifier: MIT

// The language of specifications, as data, and its two installers. The order of the definitions is their
// priority in recognition, the order of the rules their numbers: `CompilaArbolEspecificacion` relies on both.
//
// Rule 13 stands apart from rule 6, the other rule of its head. The automaton takes the first run of a head
// alone, so that rule 13 is numbered but never used; it keeps the numbers of those after it.

#include "norvik/spec/lenguajeEspecificacion.hpp"

#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"

#include <array>

namespace norvik::inline v0_2 {

namespace {

enum class Forma { Auxiliar, Token, Comentario, PalabraReservada, Operador };

struct Definicion {
    std::u16string_view texto; ///< for a comment, its opener
    std::u16string_view nombre;
    Forma forma = Forma::Token;
    std::u16string_view pseudoToken = {};
    std::int16_t tipo = Norvik_ExpReg;
    std::int16_t base = Norvik_SinBase;
    bool esSigno = false; ///< named in messages by the direct installer alone
};

constexpr Definicion palabraDeBase(std::u16string_view palabra, std::u16string_view pseudoToken) {
    return {palabra, u"baseToken", Forma::Token, pseudoToken, Norvik_AutoExpReg};
}

constexpr Definicion palabraDeTipo(std::u16string_view palabra) {
    return {palabra, u"tipoToken", Forma::Token, palabra, Norvik_AutoExpReg};
}

constexpr Definicion palabraReservada(std::u16string_view palabra, std::u16string_view nombre) {
    return {palabra, nombre, Forma::PalabraReservada};
}

constexpr Definicion signo(std::u16string_view texto, std::u16string_view nombre, Forma forma,
                           std::u16string_view pseudoToken) {
    return {texto, nombre, forma, pseudoToken, Norvik_ExpReg, Norvik_SinBase, true};
}

constexpr std::array antesDeLasFechas{
    Definicion{u"[0-9]", u"digito", Forma::Auxiliar},
    Definicion{u"[A-Za-zÑñ_]", u"letra", Forma::Auxiliar},
    Definicion{u"'", u"comentario", Forma::Comentario},
    Definicion{u"\"[^\"]+\"", u"cadena", Forma::Token, u"cadena", Norvik_Cadena},
    Definicion{u"<digito>+", u"nint", Forma::Token, u"numero entero", Norvik_Numero, Norvik_BaseDecimal},
    Definicion{u"Ø", u"cadVacia", Forma::Token, u"simbolo de cadena vacía (Ø:Alt 0216)"},
    palabraDeBase(u"BTBinaria", u"TBBinaria"),
    palabraDeBase(u"BTOctal", u"TBOctal"),
    palabraDeBase(u"BTDecimal", u"TBDecimal"),
    palabraDeBase(u"BTHexadecimal", u"TBHexadecimal"),
    palabraDeTipo(u"TTPalabraReservada"),
    palabraDeTipo(u"TTOperador"),
    palabraDeTipo(u"TTComentarioBloque"),
    palabraDeTipo(u"TTComentarioLinea"),
    palabraDeTipo(u"TTCaracter"),
    palabraDeTipo(u"TTCadena"),
    palabraDeTipo(u"TTNumero"),
    palabraDeTipo(u"TTEtiqueta"),
    palabraDeTipo(u"TTExpReg"),
    palabraDeTipo(u"TTAutoExpReg"),
};

/// The public installer alone has it.
constexpr Definicion fechas = palabraDeTipo(u"TTFecha");

constexpr std::array trasLasFechas{
    palabraReservada(u"BaseToken", u"baseT"),
    palabraReservada(u"TipoToken", u"tipoT"),
    palabraReservada(u"ExpReg", u"expreg"),
    palabraReservada(u"Token", u"token"),
    Definicion{u"=", u"igual"},
    signo(u"\\-\\>", u"flecha", Forma::Operador, u"->"),
    signo(u"\\{", u"lkey", Forma::Operador, u"{"),
    signo(u"\\}", u"rkey", Forma::Operador, u"}"),
    signo(u"\\(", u"lpar", Forma::Operador, u"("),
    signo(u"\\)", u"rpar", Forma::Operador, u")"),
    signo(u";", u"pyc", Forma::Token, u";"),
    signo(u"\\|", u"raya", Forma::Operador, u"|"),
    signo(u",", u"coma", Forma::Token, u","),
    Definicion{u"<letra>(<digito>|<letra>)*", u"id", Forma::Token, u"identificador"},
};

struct Produccion {
    std::u16string_view cabeza;
    std::u16string_view cuerpo;
};

constexpr std::array<Produccion, 28> reglas{{
    {u"G", u"SeqER SeqReglas"},
    {u"SeqER", u"ER pyc SeqER"},
    {u"SeqER", u"Token pyc SeqER"},
    {u"SeqER", u"Ø"},
    {u"ER", u"expreg id igual cadena"},
    {u"Token", u"token id igual cadena PerfilToken PseudoToken"},
    {u"PseudoToken", u"lpar cadena rpar"},
    {u"PseudoToken", u"Ø"},
    {u"PerfilToken", u"coma PerfilTokenI"},
    {u"PerfilToken", u"Ø"},
    {u"PerfilTokenI", u"tipoT igual tipoToken TipoBase"},
    {u"PerfilTokenI", u"baseT igual baseToken"},
    {u"Token", u"id tipoT igual tipoToken TipoBase"},
    {u"TipoBase", u"coma baseT igual baseToken"},
    {u"TipoBase", u"Ø"},
    {u"SeqReglas", u"Regla Disparo SeqReglas"},
    {u"SeqReglas", u"Ø"},
    {u"Disparo", u"lkey CodDisparo rkey"},
    {u"Disparo", u"Ø"},
    {u"CodDisparo", u"Ø"},
    {u"Regla", u"id flecha ReglaI"},
    {u"ReglaI", u"ConjuntoSimbolos ColaRegla"},
    {u"ReglaI", u"cadVacia ColaRegla"},
    {u"ColaRegla", u"raya ReglaI"},
    {u"ColaRegla", u"pyc"},
    {u"ConjuntoSimbolos", u"id ConjuntoSimbolosI"},
    {u"ConjuntoSimbolosI", u"ConjuntoSimbolos"},
    {u"ConjuntoSimbolosI", u"Ø"},
}};

constexpr bool enCualquierCaja = false;

/// Straight into the lexer, whose messages say nothing here: these definitions are right.
void registra(pilaTokens& lexico, const Definicion& d, bool comentarioSensible) {
    switch (d.forma) {
    case Forma::Auxiliar:
        lexico.SetER(d.texto, d.nombre, false, enCualquierCaja, d.pseudoToken, d.tipo, d.base, sinColor);
        break;
    case Forma::Token:
        lexico.SetER(d.texto, d.nombre, true, enCualquierCaja, d.pseudoToken, d.tipo, d.base, sinColor);
        break;
    case Forma::Comentario:
        lexico.SetER(std::u16string(d.texto) + u".*(\\n|$)", d.nombre, true, comentarioSensible, {},
                     Norvik_ComentarioLinea, Norvik_SinBase, sinColor);
        break;
    case Forma::PalabraReservada:
        lexico.SetPalabraReservada(d.texto, d.nombre, enCualquierCaja, d.pseudoToken);
        break;
    case Forma::Operador:
        lexico.SetOperador(d.texto, d.nombre, enCualquierCaja, d.pseudoToken);
        break;
    }
}

/// Through the control, which shows what goes wrong.
void registra(CargadorLenguaje& control, const Definicion& d) {
    const std::u16string_view pseudoToken = d.esSigno ? std::u16string_view{} : d.pseudoToken;
    std::u16string token(d.nombre);
    switch (d.forma) {
    case Forma::Auxiliar:
        control.SetER(d.texto, d.nombre, false, d.tipo, pseudoToken, d.base);
        break;
    case Forma::Token:
        control.SetER(d.texto, d.nombre, true, d.tipo, pseudoToken, d.base);
        break;
    case Forma::Comentario:
        control.SetComentarioLinea(d.texto);
        break;
    case Forma::PalabraReservada:
        control.SetPalabraReservada(d.texto, token, pseudoToken);
        break;
    case Forma::Operador:
        control.SetOperador(d.texto, d.nombre, pseudoToken);
        break;
    }
}

} // namespace

void InstalaLenguajeEspecificacion(gramatica& g, pilaTokens& lexico, bool lenguajeSensible) {
    g.inicializaConjuntos();
    g.inicializaGramatica();
    lexico.Inicializa();
    for (const auto& r : reglas) g.SetRegla(r.cabeza, r.cuerpo);
    for (const auto& d : antesDeLasFechas) registra(lexico, d, lenguajeSensible);
    for (const auto& d : trasLasFechas) registra(lexico, d, lenguajeSensible);
    g.creaConjuntos();
    g.creaAutomata();
    g.creaTablaSLR();
}

void CargaMetaLenguaje(CargadorLenguaje& control) {
    for (const auto& r : reglas) {
        control.SetRegla(std::u16string(r.cabeza).append(u" -> ").append(r.cuerpo));
    }
    for (const auto& d : antesDeLasFechas) registra(control, d);
    registra(control, fechas);
    for (const auto& d : trasLasFechas) registra(control, d);
    control.GeneraCompilador();
}

} // namespace norvik::inline v0_2
