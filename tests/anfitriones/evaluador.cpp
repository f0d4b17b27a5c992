// SPDX-License-Identifier: MIT

// An evaluator of arithmetic: a language, a parse, and a walk over its tree.
//
//   ./evaluador '2 * (3 + 4)'        prints 14

#include <norvik/spec/lenguaje.hpp>

#include <norvik/base/texto.hpp>

#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr std::string_view aritmetica = R"nvk(
    Token num = "[0-9]+(\.[0-9]+)?", TipoToken = TTNumero ("número");
    Token mas = "\+"; Token menos = "\-"; Token por = "\*"; Token entre = "/"; Token abre = "\("; Token cierra = "\)";
    E -> E mas T | E menos T | T;
    T -> T por F | T entre F | F;
    F -> num | abre E cierra | menos F;
)nvk";

// What stands below a node has been evaluated when the walk leaves it: no depth of parentheses is too much.
double evalua(norvik::Nodo raiz) {
    std::vector<double> valores;
    const auto sale = [&](norvik::Nodo nodo) {
        const std::u16string_view cuerpo = nodo.cuerpo();
        if (nodo.nombre() == u"num") valores.push_back(std::stod(nodo.lexemaUtf8()));
        if (cuerpo == u"menos F") valores.back() = -valores.back();
        if (nodo.numHijos() != 3 || cuerpo == u"abre E cierra") return;
        const double derecho = valores.back();
        valores.pop_back();
        if (cuerpo == u"E mas T") valores.back() += derecho;
        if (cuerpo == u"E menos T") valores.back() -= derecho;
        if (cuerpo == u"T por F") valores.back() *= derecho;
        if (cuerpo == u"T entre F") valores.back() /= derecho;
    };
    norvik::ArbolAnalisis::recorre(
        raiz, [](norvik::Nodo) {}, sale);
    return valores.back();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const auto compilacion = norvik::Lenguaje::compila(aritmetica);
    if (!compilacion) return 2;
    const auto analisis = analiza(*compilacion.lenguaje, argv[1]);
    for (const auto& error : analisis.diagnosticos)
        std::cerr << "columna " << error.rango.inicio.columna << ": " << norvik::aUtf8(mensaje(error))
                  << '\n';
    if (!analisis) return 1;
    std::cout << evalua(analisis.arbol.raiz()) << '\n';
}
