// SPDX-License-Identifier: MIT

#include "norvik/checks/arbolEjemplo.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/checks/recorridoEjemplo.hpp"

namespace norvik::inline v0_2 {

std::vector<std::u16string> hojas(const ArbolEjemplo& arbol) {
    std::vector<std::u16string> lista;
    recorre(
        arbol,
        [&](const NodoEjemplo& nodo, std::size_t /*nivel*/) {
            if (nodo.regla == 0) lista.push_back(nodo.simbolo);
        },
        [](const NodoEjemplo&) {});
    return lista;
}

std::u16string enTexto(const ArbolEjemplo& arbol) {
    std::u16string texto;
    recorre(
        arbol,
        [&](const NodoEjemplo& nodo, std::size_t /*nivel*/) {
            if (!texto.empty() && !texto.ends_with(u'[')) texto += u' ';
            texto += nodo.simbolo;
            if (nodo.regla == 0) return;
            texto += aTexto(nodo.regla) + u'[';
            if (nodo.hijos.empty()) texto += cadenaVacia;
        },
        [&](const NodoEjemplo& nodo) {
            if (nodo.regla != 0) texto += u']';
        });
    return texto;
}

} // namespace norvik::inline v0_2
