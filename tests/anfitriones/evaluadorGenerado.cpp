// SPDX-License-Identifier: MIT

// The evaluator with a language that was made beforehand: nothing is compiled, and each rule has a name.
//
//   norvik modulo aritmetica.nvk Aritmetica --lenguaje cpp
//   ./evaluadorGenerado '2 * (3 + 4)'        prints 14

#include "Aritmetica.hpp"

#include <norvik/base/texto.hpp>

#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace {

// The compiler tells of a rule that is new or gone; these, of one that is now another.
consteval bool es(Aritmetica::Regla regla, std::u16string_view texto) {
    return Aritmetica::datos.reglas[static_cast<std::size_t>(regla) - 1] == texto;
}
static_assert(es(Aritmetica::Regla::E_1, u"E -> E mas T") && es(Aritmetica::Regla::E_2, u"E -> E menos T"));
static_assert(es(Aritmetica::Regla::T_1, u"T -> T por F") && es(Aritmetica::Regla::T_2, u"T -> T entre F"));
static_assert(es(Aritmetica::Regla::F_1, u"F -> num") && es(Aritmetica::Regla::F_3, u"F -> menos F"));

// What stands below a node has been evaluated when the walk leaves it: no depth of parentheses is too much.
double evalua(norvik::Nodo raiz) {
    std::vector<double> valores;
    const auto opera = [&](const auto& operacion) {
        const double derecho = valores.back();
        valores.pop_back();
        valores.back() = operacion(valores.back(), derecho);
    };
    const auto sale = [&](norvik::Nodo nodo) {
        using enum Aritmetica::Regla;
        if (nodo.esToken()) return;
        switch (Aritmetica::Regla{nodo.regla()}) {
        case E_1:
            return opera(std::plus());
        case E_2:
            return opera(std::minus());
        case T_1:
            return opera(std::multiplies());
        case T_2:
            return opera(std::divides());
        case F_1:
            return valores.push_back(std::stod(nodo[0].lexemaUtf8()));
        case F_3:
            valores.back() = -valores.back();
            return;
        case E_3:
        case T_3:
        case F_2:
            return; // the value of what they contain
        }
    };
    norvik::ArbolAnalisis::recorre(
        raiz, [](norvik::Nodo) {}, sale);
    return valores.back();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const auto analisis = analiza(Aritmetica::lenguaje(), argv[1]);
    for (const auto& error : analisis.diagnosticos)
        std::cerr << "columna " << error.rango.inicio.columna << ": " << norvik::aUtf8(mensaje(error))
                  << '\n';
    if (!analisis) return 1;
    std::cout << evalua(analisis.arbol.raiz()) << '\n';
}
