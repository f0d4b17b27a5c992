// SPDX-License-Identifier: MIT

// Names of languages as C++ identifiers. Letters, digits and single underscores inside stay; anything else is
// written "_uHHHH", its number. An underscore that could be taken for the beginning of that, that would stand
// beside another or that comes first or last is written so, too: what is read back is one name only, "__" and
// "_A" (reserved in C++) never come about, and an underscore at the end, or an underscore and digits there,
// are always what is appended here.
#include "norvik/report/identificadorCpp.hpp"

#include "norvik/base/texto.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace norvik::inline v0_2 {

namespace {

using namespace std::string_view_literals;

// In order, as the macros below.
constexpr std::array palabrasDeCpp = {u"alignas"sv,       u"alignof"sv,      u"and"sv,
                                      u"and_eq"sv,        u"asm"sv,          u"auto"sv,
                                      u"bitand"sv,        u"bitor"sv,        u"bool"sv,
                                      u"break"sv,         u"case"sv,         u"catch"sv,
                                      u"char"sv,          u"char16_t"sv,     u"char32_t"sv,
                                      u"char8_t"sv,       u"class"sv,        u"co_await"sv,
                                      u"co_return"sv,     u"co_yield"sv,     u"compl"sv,
                                      u"concept"sv,       u"const"sv,        u"const_cast"sv,
                                      u"consteval"sv,     u"constexpr"sv,    u"constinit"sv,
                                      u"continue"sv,      u"decltype"sv,     u"default"sv,
                                      u"delete"sv,        u"do"sv,           u"double"sv,
                                      u"dynamic_cast"sv,  u"else"sv,         u"enum"sv,
                                      u"explicit"sv,      u"export"sv,       u"extern"sv,
                                      u"false"sv,         u"float"sv,        u"for"sv,
                                      u"friend"sv,        u"goto"sv,         u"if"sv,
                                      u"inline"sv,        u"int"sv,          u"long"sv,
                                      u"mutable"sv,       u"namespace"sv,    u"new"sv,
                                      u"noexcept"sv,      u"not"sv,          u"not_eq"sv,
                                      u"nullptr"sv,       u"operator"sv,     u"or"sv,
                                      u"or_eq"sv,         u"private"sv,      u"protected"sv,
                                      u"public"sv,        u"register"sv,     u"reinterpret_cast"sv,
                                      u"requires"sv,      u"return"sv,       u"short"sv,
                                      u"signed"sv,        u"sizeof"sv,       u"static"sv,
                                      u"static_assert"sv, u"static_cast"sv,  u"std"sv,
                                      u"struct"sv,        u"switch"sv,       u"template"sv,
                                      u"this"sv,          u"thread_local"sv, u"throw"sv,
                                      u"true"sv,          u"try"sv,          u"typedef"sv,
                                      u"typeid"sv,        u"typename"sv,     u"union"sv,
                                      u"unsigned"sv,      u"using"sv,        u"virtual"sv,
                                      u"void"sv,          u"volatile"sv,     u"wchar_t"sv,
                                      u"while"sv,         u"xor"sv,          u"xor_eq"sv};

// Macros of the standard headers, which nearly every program includes, and of compilers that are not asked
// for the bare standard.
constexpr std::array macros = {u"EOF"sv,   u"INFINITY"sv, u"NAN"sv,    u"NULL"sv,  u"assert"sv, u"errno"sv,
                               u"linux"sv, u"offsetof"sv, u"stderr"sv, u"stdin"sv, u"stdout"sv, u"unix"sv};

constexpr bool esCifra(char16_t c) {
    return c >= u'0' && c <= u'9';
}
constexpr bool esAlfanumerico(char16_t c) {
    return esCifra(c) || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}
// The letters that every version of C++ takes, and takes as they are.
constexpr bool esLetraLatina(char16_t c) {
    return c >= 0xC0 && c <= 0x17F && c != 0xD7 && c != 0xF7;
}
constexpr bool esHexadecimal(char16_t c) {
    return esCifra(c) || (c >= u'A' && c <= u'F');
}

// What follows an underscore lets it stand.
bool dejaSubrayado(std::u16string_view resto) {
    constexpr std::size_t cifras = 4;
    if (resto.empty() || !(esAlfanumerico(resto.front()) || esLetraLatina(resto.front()))) return false;
    return resto.front() != u'u' || resto.size() <= cifras ||
           !std::ranges::all_of(resto.substr(1, cifras), esHexadecimal);
}

std::u16string codifica(std::u16string_view nombre) {
    std::u16string resultado;
    for (std::size_t i = 0; i < nombre.size(); ++i) {
        const char16_t c = nombre[i];
        const bool queda = c == u'_' ? i > 0 && dejaSubrayado(nombre.substr(i + 1))
                                     : esLetraLatina(c) || (esAlfanumerico(c) && (i > 0 || !esCifra(c)));
        resultado += queda ? nombreUniversal({&c, 1}) : u"_u" + enHexadecimal(c);
    }
    return resultado;
}

} // namespace

std::u16string enHexadecimal(char16_t c) {
    std::u16string texto(4, u'0');
    unsigned valor = c;
    for (auto cifra = texto.rbegin(); cifra != texto.rend(); ++cifra, valor /= 16)
        *cifra = u"0123456789ABCDEF"[valor % 16];
    return texto;
}

bool esReservadoEnCpp(std::u16string_view nombre) {
    return std::ranges::binary_search(palabrasDeCpp, nombre) || std::ranges::binary_search(macros, nombre);
}

std::u16string nombreUniversal(std::u16string_view nombre) {
    std::u16string resultado;
    for (const char16_t c : nombre) resultado += c < 0x80 ? std::u16string(1, c) : u"\\u" + enHexadecimal(c);
    return resultado;
}

std::u16string identificadorCpp(std::u16string_view nombre) {
    std::u16string resultado = codifica(nombre);
    if (resultado.empty() || esReservadoEnCpp(resultado)) resultado += u'_';
    return resultado;
}

// Head "E" and 1 are "E_1", head "E_1" and 1 "E_1_1".
std::u16string identificadorCpp(std::u16string_view cabeza, int ordinal) {
    return codifica(cabeza) + u'_' + aTexto(ordinal);
}

} // namespace norvik::inline v0_2
