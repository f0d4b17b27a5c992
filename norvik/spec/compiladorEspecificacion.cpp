// SPDX-License-Identifier: MIT

// Compiles the syntax tree of a specification that a control holds.
#include "norvik/spec/compiladorEspecificacion.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/arbol.hpp"
#include "norvik/platform/sistema.hpp"
#include "norvik/spec/recorridoEspecificacion.hpp"

#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

/// A node of the control's tree; one that a host put together may lack children.
class NodoDeArbol {
public:
    explicit NodoDeArbol(const Arbol& nodo) : nodo_(&nodo) {}

    bool esHoja() const { return nodo_->GetEsHoja(); }
    bool esRegla(std::u16string_view nombre) const { return nodo_->GetNomRegla() == nombre; }
    std::u16string_view lexema() const { return nodo_->GetLexema(); }
    NodoDeArbol hijo(std::int16_t numero) const {
        const Arbol* const encontrado = nodo_->GetHijo(numero);
        if (encontrado == nullptr)
            throw ArgumentoNoValido(u"Argumento o llamada a procedimiento no válidos: en el árbol de la "
                                    u"especificación, un nodo " +
                                    std::u16string(nodo_->GetNomRegla()) + u" no tiene su hijo " +
                                    aTexto(numero));
        return NodoDeArbol(*encontrado);
    }
    void apilaHijos(std::vector<NodoDeArbol>& pila) const {
        const auto hijos = nodo_->hijos();
        for (std::size_t i = hijos.size(); i > 0; --i) pila.emplace_back(*hijos[i - 1]);
    }

private:
    const Arbol* nodo_;
};

bool esParteDeUnCuerpo(const NodoDeArbol& nodo) {
    return nodo.esRegla(u"ReglaI") || nodo.esRegla(u"ConjuntoSimbolos") ||
           nodo.esRegla(u"ConjuntoSimbolosI") || nodo.esRegla(u"ColaRegla");
}

std::u16string cuerpoDe(const NodoDeArbol& nodo) {
    constexpr auto nada = [](const NodoDeArbol& /*nodo*/) {};
    return especificacion::cuerpoDe(nodo, nada, nada);
}

} // namespace

std::u16string CompilaArbolEspecificacion(const Arbol& nodo, gramatica& g, pilaTokens& lexico,
                                          Sistema& sistema, const Directivas& directivas) {
    g.ponMetodo(directivas.tabla.metodo);
    g.ponPrecedencias(directivas.tabla.precedencias);
    lexico.distingueMayusculas = directivas.distingueMayusculas;
    const NodoDeArbol raiz(nodo);
    if (esParteDeUnCuerpo(raiz)) return cuerpoDe(raiz);
    const auto define = [&](const especificacion::Definicion<NodoDeArbol>& d) {
        const std::u16string error =
            lexico.SetER(d.patron.lexema(), d.nombre.lexema(), d.esToken, directivas.distingueMayusculas,
                         d.pseudoToken, d.perfil.tipo, d.perfil.base, sinColor);
        if (!error.empty())
            sistema.muestraMensaje({error, u"Atención", Icono::Exclamacion, Botones::Aceptar});
    };
    const auto regla = [&](const NodoDeArbol& cabeza, const NodoDeArbol& cuerpo) {
        g.SetRegla(cabeza.lexema(), cuerpoDe(cuerpo), 0);
    };
    especificacion::recorre(raiz, define, regla);
    return {};
}

} // namespace norvik::inline v0_2
