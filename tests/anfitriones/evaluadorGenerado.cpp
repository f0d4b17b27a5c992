// The evaluator with a language that was made beforehand: nothing is compiled, and each rule has a name.
//
//   norvik modulo aritmetica.nvk Aritmetica --lenguaje cpp
//   ./evaluadorGenerado '2 * (3 + 4)'        prints 14

#include "Aritmetica.hpp"

#include <norvik/base/texto.hpp>

#include <iostream>
#include <string>
#include <vector>

namespace {

class Evaluacion {
public:
    // What stands below a node has been evaluated when the walk leaves it: no depth of parentheses is too
    // much.
    double de(norvik::Nodo raiz) {
        norvik::ArbolAnalisis::recorre(
            raiz, [](norvik::Nodo) {}, [this](norvik::Nodo nodo) { sale(nodo); });
        return saca();
    }

private:
    void sale(norvik::Nodo nodo) {
        using enum Aritmetica::Regla;
        if (nodo.esToken()) return;
        switch (Aritmetica::Regla{nodo.regla()}) {
        case E_1:
            return opera([](double a, double b) { return a + b; });
        case E_2:
            return opera([](double a, double b) { return a - b; });
        case T_1:
            return opera([](double a, double b) { return a * b; });
        case T_2:
            return opera([](double a, double b) { return a / b; });
        case F_1:
            return valores_.push_back(std::stod(nodo[0].lexemaUtf8()));
        case F_3:
            return valores_.push_back(-saca());
        case E_3:
        case T_3:
        case F_2:
            return; // the value of what they contain
        }
    }

    template <typename Operacion>
    void opera(const Operacion& operacion) {
        const double derecho = saca();
        const double izquierdo = saca();
        valores_.push_back(operacion(izquierdo, derecho));
    }

    double saca() {
        const double valor = valores_.back();
        valores_.pop_back();
        return valor;
    }

    std::vector<double> valores_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const auto analisis = norvik::analiza(Aritmetica::lenguaje(), std::string_view(argv[1]));
    for (const auto& error : analisis.diagnosticos)
        std::cerr << "columna " << error.rango.inicio.columna << ": " << norvik::aUtf8(mensaje(error))
                  << '\n';
    if (!analisis) return 1;
    std::cout << Evaluacion().de(analisis.arbol.raiz()) << '\n';
}
