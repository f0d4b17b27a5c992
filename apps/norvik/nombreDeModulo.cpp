#include "nombreDeModulo.hpp"

#include "norvik/base/texto.hpp"

#include <algorithm>
#include <array>

namespace norvik::orden {

namespace {

using namespace std::string_view_literals;

// A module in C++ is a namespace of its name.
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

} // namespace

bool esNombreDeModulo(std::u16string_view nombre, LenguajeModulo lenguaje) {
    const bool reservada = lenguaje == LenguajeModulo::Cpp &&
                           std::binary_search(palabrasDeCpp.begin(), palabrasDeCpp.end(), nombre);
    return esIdentificador(nombre) && !reservada;
}

} // namespace norvik::orden
