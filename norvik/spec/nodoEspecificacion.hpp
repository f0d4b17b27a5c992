// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/parser/arbolAnalisis.hpp"

#include <cstddef>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// A node of a specification's tree.
class NodoEspecificacion {
public:
    explicit NodoEspecificacion(Nodo nodo) : nodo_(nodo) {}

    bool esHoja() const { return nodo_.numHijos() == 0; }
    bool esRegla(std::u16string_view nombre) const { return !nodo_.esToken() && nodo_.nombre() == nombre; }
    std::u16string_view lexema() const { return nodo_.lexema(); }
    Rango rango() const { return nodo_.rango(); }
    NodoEspecificacion hijo(std::size_t numero) const { return NodoEspecificacion(nodo_[numero - 1]); }
    void apilaHijos(std::vector<NodoEspecificacion>& pila) const {
        for (std::size_t i = nodo_.numHijos(); i > 0; --i) pila.push_back(hijo(i));
    }

private:
    Nodo nodo_;
};

} // namespace norvik::inline v0_2
