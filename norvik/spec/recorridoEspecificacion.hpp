// SPDX-License-Identifier: MIT

#pragma once

// The walk over the syntax tree of a specification: one pre-order walk over the nodes, in which definitions
// and rules act and all else only leads to its children; a second small walk writes the body of one rule.
// Both keep the nodes still to visit in a list of their own, since a specification nests as deep as it is
// long. Each node is visited once.
//
// A tree is one of the control's, or one of those that are values: `Nodo` stands for either, as
//   esHoja(), esRegla(nombre), lexema(), hijo(n) (from 1), hijos()
#include "norvik/base/texto.hpp"
#include "norvik/lexer/tipos.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2::especificacion {

struct Palabra {
    std::u16string_view texto;
    std::int16_t valor;
};

inline constexpr std::array<Palabra, 11> tipos{{{u"TTPALABRARESERVADA", Norvik_PalabraReservada},
                                                {u"TTOPERADOR", Norvik_Operador},
                                                {u"TTCOMENTARIOBLOQUE", Norvik_ComentarioBloque},
                                                {u"TTCOMENTARIOLINEA", Norvik_ComentarioLinea},
                                                {u"TTCADENA", Norvik_Cadena},
                                                {u"TTCARACTER", Norvik_Caracter},
                                                {u"TTNUMERO", Norvik_Numero},
                                                {u"TTETIQUETA", Norvik_Etiqueta},
                                                {u"TTEXPREG", Norvik_ExpReg},
                                                {u"TTAUTOEXPREG", Norvik_AutoExpReg},
                                                {u"TTFECHA", Norvik_Fecha}}};

inline constexpr std::array<Palabra, 4> bases{{{u"BTBINARIA", Norvik_BaseBinaria},
                                               {u"BTOCTAL", Norvik_BaseOctal},
                                               {u"BTDECIMAL", Norvik_BaseDecimal},
                                               {u"BTHEXADECIMAL", Norvik_BaseHexadecimal}}};

/// Value of a word in any case, 0 when it is not in the table.
template <std::size_t n>
std::int16_t valorDe(const std::array<Palabra, n>& tabla, std::u16string_view palabra) {
    const std::u16string mayusculas = aMayusculas(palabra);
    for (const auto& p : tabla)
        if (p.texto == mayusculas) return p.valor;
    return 0;
}

struct Perfil {
    std::int16_t tipo = Norvik_ExpReg;
    std::int16_t base = Norvik_SinBase;
};

/// Kind and base that a `PerfilToken` node gives.
template <typename Nodo>
Perfil perfilDe(const Nodo& nodo) {
    if (nodo.esHoja()) return {};
    const Nodo contenido = nodo.hijo(2);
    if (aMayusculas(contenido.hijo(1).lexema()) != u"TIPOTOKEN")
        return {Norvik_Numero, valorDe(bases, contenido.hijo(3).lexema())};
    const Nodo base = contenido.hijo(4);
    return {valorDe(tipos, contenido.hijo(3).lexema()),
            base.esHoja() ? std::int16_t{0} : valorDe(bases, base.hijo(4).lexema())};
}

/// The body that a node stands for, empty for one that is no part of a body. `alSimbolo(nodo)` is called for
/// each symbol, `alAlternativa(nodo)` for each alternative, in the order of the text.
template <typename Nodo, typename AlSimbolo, typename AlAlternativa>
std::u16string cuerpoDe(const Nodo& raiz, const AlSimbolo& alSimbolo, const AlAlternativa& alAlternativa) {
    using namespace std::string_view_literals; // else the lengths would be counted at each node
    std::u16string cuerpo;
    std::vector<Nodo> pendientes{raiz};
    while (!pendientes.empty()) {
        const Nodo nodo = pendientes.back();
        pendientes.pop_back();
        if (nodo.esHoja()) continue;
        const Nodo primero = nodo.hijo(1);
        if (nodo.esRegla(u"ReglaI"sv)) {
            alAlternativa(primero);
            pendientes.push_back(nodo.hijo(2));
            if (primero.esRegla(u"ConjuntoSimbolos"sv))
                pendientes.push_back(primero);
            else
                cuerpo += cadenaVacia;
        } else if (nodo.esRegla(u"ConjuntoSimbolos"sv)) {
            cuerpo += primero.lexema();
            alSimbolo(primero);
            pendientes.push_back(nodo.hijo(2));
        } else if (nodo.esRegla(u"ConjuntoSimbolosI"sv) && primero.esRegla(u"ConjuntoSimbolos"sv)) {
            cuerpo += u' ';
            pendientes.push_back(primero);
        } else if (nodo.esRegla(u"ColaRegla"sv) && primero.lexema() != u";"sv) {
            cuerpo += u" | ";
            pendientes.push_back(nodo.hijo(2));
        }
    }
    return cuerpo;
}

/// A definition as it stands in the tree; `patron` and `nombre` are leaves.
template <typename Nodo>
struct Definicion {
    Nodo nombre;
    Nodo patron;
    bool esToken = false;
    Perfil perfil;
    std::u16string_view pseudoToken;
};

template <typename Nodo>
Definicion<Nodo> definicionDe(const Nodo& nodo, bool esToken) {
    Definicion<Nodo> definicion{nodo.hijo(2), nodo.hijo(4), esToken, {}, {}};
    if (!esToken) return definicion;
    definicion.perfil = perfilDe(nodo.hijo(5));
    const Nodo pseudoToken = nodo.hijo(6);
    if (!pseudoToken.esHoja()) definicion.pseudoToken = pseudoToken.hijo(2).lexema();
    return definicion;
}

/// Walks a tree in the order of its text: `alDefinir(definicion)` for each definition, `alReglar(cabeza,
/// cuerpo)` for each rule, with the leaf of its head and the node of its alternatives.
template <typename Nodo, typename AlDefinir, typename AlReglar>
void recorre(const Nodo& raiz, const AlDefinir& alDefinir, const AlReglar& alReglar) {
    using namespace std::string_view_literals;
    std::vector<Nodo> pendientes{raiz};
    while (!pendientes.empty()) {
        const Nodo nodo = pendientes.back();
        pendientes.pop_back();
        if (nodo.esHoja()) continue;
        if (nodo.esRegla(u"ER"sv))
            alDefinir(definicionDe(nodo, false));
        else if (nodo.esRegla(u"Token"sv))
            alDefinir(definicionDe(nodo, true));
        else if (nodo.esRegla(u"Regla"sv))
            alReglar(nodo.hijo(1), nodo.hijo(3));
        else
            nodo.apilaHijos(pendientes);
    }
}

} // namespace norvik::inline v0_2::especificacion
