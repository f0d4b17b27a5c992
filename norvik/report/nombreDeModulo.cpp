// SPDX-License-Identifier: MIT

#include "norvik/report/nombreDeModulo.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/report/identificadorCpp.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace norvik::inline v0_2 {

namespace {

using namespace std::string_view_literals;

// Compared without regard to case.
constexpr std::array palabrasDeVb = {
    u"addressof"sv, u"and"sv,        u"any"sv,        u"array"sv,      u"as"sv,      u"boolean"sv,
    u"byref"sv,     u"byte"sv,       u"byval"sv,      u"call"sv,       u"case"sv,    u"cbool"sv,
    u"cbyte"sv,     u"ccur"sv,       u"cdate"sv,      u"cdbl"sv,       u"cdec"sv,    u"cint"sv,
    u"circle"sv,    u"clng"sv,       u"close"sv,      u"const"sv,      u"csng"sv,    u"cstr"sv,
    u"currency"sv,  u"cvar"sv,       u"cverr"sv,      u"date"sv,       u"debug"sv,   u"decimal"sv,
    u"declare"sv,   u"defbool"sv,    u"defbyte"sv,    u"defcur"sv,     u"defdate"sv, u"defdbl"sv,
    u"defdec"sv,    u"defint"sv,     u"deflng"sv,     u"defobj"sv,     u"defsng"sv,  u"defstr"sv,
    u"defvar"sv,    u"dim"sv,        u"do"sv,         u"doevents"sv,   u"double"sv,  u"each"sv,
    u"else"sv,      u"elseif"sv,     u"empty"sv,      u"end"sv,        u"endif"sv,   u"enum"sv,
    u"eqv"sv,       u"erase"sv,      u"event"sv,      u"exit"sv,       u"false"sv,   u"fix"sv,
    u"for"sv,       u"friend"sv,     u"function"sv,   u"get"sv,        u"global"sv,  u"gosub"sv,
    u"goto"sv,      u"if"sv,         u"imp"sv,        u"implements"sv, u"in"sv,      u"input"sv,
    u"inputb"sv,    u"int"sv,        u"integer"sv,    u"is"sv,         u"lbound"sv,  u"len"sv,
    u"lenb"sv,      u"let"sv,        u"like"sv,       u"lock"sv,       u"long"sv,    u"loop"sv,
    u"lset"sv,      u"me"sv,         u"mod"sv,        u"new"sv,        u"next"sv,    u"not"sv,
    u"nothing"sv,   u"null"sv,       u"on"sv,         u"open"sv,       u"option"sv,  u"optional"sv,
    u"or"sv,        u"paramarray"sv, u"preserve"sv,   u"print"sv,      u"private"sv, u"pset"sv,
    u"public"sv,    u"put"sv,        u"raiseevent"sv, u"redim"sv,      u"rem"sv,     u"resume"sv,
    u"return"sv,    u"rset"sv,       u"scale"sv,      u"seek"sv,       u"select"sv,  u"set"sv,
    u"sgn"sv,       u"shared"sv,     u"single"sv,     u"spc"sv,        u"static"sv,  u"stop"sv,
    u"string"sv,    u"sub"sv,        u"tab"sv,        u"then"sv,       u"to"sv,      u"true"sv,
    u"type"sv,      u"typeof"sv,     u"ubound"sv,     u"unlock"sv,     u"until"sv,   u"variant"sv,
    u"wend"sv,      u"while"sv,      u"with"sv,       u"withevents"sv, u"write"sv,   u"xor"sv};

} // namespace

bool esNombreDeModulo(std::u16string_view nombre, LenguajeModulo lenguaje) {
    if (!esIdentificador(nombre)) return false;
    switch (lenguaje) {
    case LenguajeModulo::Vb:
        return !std::ranges::binary_search(palabrasDeVb, std::u16string_view(aMinusculas(nombre)));
    case LenguajeModulo::Cpp:
        // The header's namespace would stand beside the function of that name.
        return nombre != u"main" && !esReservadoEnCpp(nombre);
    }
    return false;
}

void compruebaNombreDeModulo(std::u16string_view nombre, LenguajeModulo lenguaje) {
    if (esNombreDeModulo(nombre, lenguaje)) return;
    throw ArgumentoNoValido(u"El nombre del módulo no puede ser «" + std::u16string(nombre) +
                            u"»: ha de ser un identificador que no sea palabra reservada");
}

} // namespace norvik::inline v0_2
