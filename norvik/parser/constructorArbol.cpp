// SPDX-License-Identifier: MIT

// The tree of a parse, from the end of its trace backwards. The last step of a subtree is its root: a
// reduction has one child a symbol of its body, and the steps before it are those of the rightmost child,
// then of the child left of that, and so on. Nodes that wait for their steps stand on a list with the
// rightmost on top, so depth costs no recursion, and each node a constant time. Rule texts are copied once a
// rule, lexemes all together: the tree must outlive grammar and text.
#include "norvik/parser/constructorArbol.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/parser/arbolSintactico.hpp"
#include "norvik/parser/traza.hpp"

#include <vector>

namespace norvik::inline v0_2 {

namespace {

class Constructor {
public:
    Constructor(ArbolSintactico& arbol, Traza& traza, const gramatica& gramatica)
        : arbol_(arbol), traza_(traza), gramatica_(gramatica), lexemas_(arbol.guardaTexto(traza.textos())) {}

    void construye() {
        pendientes_.push_back(&arbol_.raiz());
        while (!pendientes_.empty()) {
            Arbol& nodo = *pendientes_.back();
            pendientes_.pop_back();
            hazSubarbol(nodo);
        }
        arbol_.acaba();
    }

private:
    struct ReglaUsada {
        const FichaRegla* ficha = nullptr;
        std::size_t numHijos = 0;
    };

    // The node and what hangs from it at its right side; the other children are left pending.
    void hazSubarbol(Arbol& raiz) {
        Arbol* nodo = &raiz;
        while (const std::int16_t numero = traza_.sacaReduccion()) {
            const ReglaUsada& regla = reglaUsada(numero);
            if (regla.numHijos == 1) {
                nodo = &arbol_.hazReglaDeUno(*nodo, *regla.ficha);
                continue;
            }
            const auto hijos = arbol_.hazRegla(*nodo, *regla.ficha, regla.numHijos);
            if (hijos.empty()) return;
            for (Arbol* const hijo : hijos.first(hijos.size() - 1)) pendientes_.push_back(hijo);
            nodo = hijos.back();
        }
        hazHoja(*nodo);
    }

    const ReglaUsada& reglaUsada(std::int16_t numero) {
        const auto indice = static_cast<std::size_t>(numero);
        if (indice >= reglas_.size()) reglas_.resize(indice + 1);
        ReglaUsada& regla = reglas_[indice];
        if (regla.ficha == nullptr) {
            regla.ficha = &arbol_.guardaRegla(gramatica_.GetLeftRegla(numero),
                                              gramatica_.GetRightRegla(numero), numero);
            regla.numHijos = static_cast<std::size_t>(gramatica_.GetNumElementosRegla(numero));
        }
        return regla;
    }

    // Shifts of the end of the text make no node: the leaf is what the trace holds before them, a reduction
    // even, which then shows its number.
    void hazHoja(Arbol& nodo) {
        Traza::Desplazamiento paso;
        std::int16_t regla = 0;
        do {
            paso = traza_.desplazamientoCima();
            regla = traza_.reglaCima();
            traza_.sacaTraza();
        } while (paso.procedencia == Traza::Procedencia::FinDeTexto);
        const auto lexema =
            regla == 0 ? lexemas_.substr(paso.inicio, paso.longitud) : arbol_.guardaTexto(aTexto(regla));
        ArbolSintactico::hazHoja(nodo, lexema, paso.linea, paso.columna);
    }

    ArbolSintactico& arbol_;
    Traza& traza_;
    const gramatica& gramatica_;
    std::u16string_view lexemas_;
    std::vector<ReglaUsada> reglas_;
    std::vector<Arbol*> pendientes_;
};

} // namespace

void construyeArbol(ArbolSintactico& arbol, Traza& traza, const gramatica& gramatica) {
    try {
        Constructor(arbol, traza, gramatica).construye();
    } catch (const IndiceNoValido&) {
        arbol.reinicia();
        throw IndiceNoValido(u"Índice no válido: la tabla SLR ha aceptado el texto, pero sus reducciones no "
                             u"forman un árbol");
    } catch (...) {
        arbol.reinicia();
        throw;
    }
}

} // namespace norvik::inline v0_2
