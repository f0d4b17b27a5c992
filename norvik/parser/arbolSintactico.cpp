// SPDX-License-Identifier: MIT

// How the nodes of a tree hang together. A parser's node has all its children side by side, and a table of
// exactly their number, or points at the only one; the first attachment by hand moves the table to one with
// room at both ends, which doubles, so that each attachment takes constant time on the average. What is left
// behind is taken back with the tree.
//
// A tree that is dropped is retired, at a cost of its rules and not of its nodes, and the next one is made in
// other places: of a generation retired before, the oldest, once enough memory is among the retired ones.
// Trees of any size so alternate between two places at least, and small ones stay long where they were.
#include "norvik/parser/arbolSintactico.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"

#include <algorithm>
#include <bit>
#include <memory>
#include <vector>

namespace norvik::inline v0_2 {

void ArbolSintactico::reinicia() {
    activa_->retira();
    if (!activa_->vacia()) cambiaDeGeneracion();
    activa_->empieza();
    raiz_.limpia();
    raiz_.padre_ = nullptr;
    arena_.reinicia();
}

void ArbolSintactico::cambiaDeGeneracion() {
    constexpr std::size_t bastantes = std::size_t{256} << 10;
    const std::size_t retirados = bytesRetirados_ + activa_->bytes();
    if (generaciones_.size() > 1 && retirados > bastantes)
        generaciones_.splice(generaciones_.end(), generaciones_, generaciones_.begin());
    else
        generaciones_.emplace_back(*this);
    bytesRetirados_ = retirados - generaciones_.back().bytes();
    activa_ = &generaciones_.back();
}

Arbol& ArbolSintactico::nuevoNodo() {
    return *std::construct_at(activa_->reserva(1), Arbol::Clave{}, sinRegla());
}

std::u16string_view ArbolSintactico::guardaTexto(std::u16string_view texto) {
    auto* const copia = arena_.reserva<char16_t>(texto.size());
    std::ranges::copy(texto, copia);
    return {copia, texto.size()};
}

const FichaRegla& ArbolSintactico::guardaRegla(std::u16string_view nombre, std::u16string_view cuerpo,
                                               std::int16_t numero) {
    return activa_->nuevaFicha(guardaTexto(nombre), guardaTexto(cuerpo), numero);
}

void ArbolSintactico::hazHoja(Arbol& nodo, std::u16string_view lexema, std::int32_t linea,
                              std::int32_t columna) {
    nodo.lexema_ = lexema.data();
    nodo.largoLexema_ = static_cast<std::uint32_t>(lexema.size());
    nodo.linea_ = linea;
    nodo.columna_ = columna;
}

std::span<Arbol* const> ArbolSintactico::hazRegla(Arbol& nodo, const FichaRegla& regla,
                                                  std::size_t numHijos) {
    if (numHijos == 1) {
        hazReglaDeUno(nodo, regla);
        return nodo.hijos();
    }
    nodo.regla_ = &regla;
    if (numHijos == 0) return {};
    auto** const tabla = arena_.reserva<Arbol*>(numHijos);
    auto* const hijos = activa_->reserva(numHijos);
    for (std::size_t i = 0; i < numHijos; ++i)
        std::construct_at(tabla + i, std::construct_at(hijos + i, Arbol::Clave{}, sinRegla(), &nodo));
    nodo.hijos_ = tabla;
    nodo.numHijos_ = static_cast<std::uint32_t>(numHijos) & Arbol::maximoHijos;
    nodo.conSitio_ = 0;
    return {tabla, numHijos};
}

// A copy of a subtree, without parent.
Arbol& ArbolSintactico::copia(const Arbol& original) {
    struct Pendiente {
        const Arbol* de;
        Arbol* a;
    };
    Arbol& raiz = nuevoNodo();
    std::vector<Pendiente> pendientes = {{&original, &raiz}};
    while (!pendientes.empty()) {
        const auto [de, a] = pendientes.back();
        pendientes.pop_back();
        hazHoja(*a, guardaTexto(de->GetLexema()), de->linea_, de->columna_);
        const auto& regla = guardaRegla(de->GetNomRegla(), de->GetRegla(), de->GetNumRegla());
        const auto hijos = hazRegla(*a, regla, de->hijos().size());
        for (std::size_t i = 0; i < hijos.size(); ++i) pendientes.push_back({de->hijos()[i], hijos[i]});
    }
    return raiz;
}

// Room for one child more at either end. A table with room has places for children up to the next power of
// two on both sides, so the number of children tells when it is full.
void ArbolSintactico::hazSitio(Arbol& nodo) {
    const std::size_t numero = nodo.numHijos_;
    if (nodo.conSitio_ != 0 && !std::has_single_bit(numero)) return;
    const std::size_t libres = std::bit_ceil(numero + 1) - numero;
    auto** const tabla = arena_.reserva<Arbol*>(numero + 2 * libres) + libres;
    std::ranges::copy(nodo.hijos(), tabla);
    nodo.hijos_ = tabla;
    nodo.conSitio_ = 1;
}

bool Arbol::tieneEncima(const Arbol& nodo) const {
    const Arbol* encima = this;
    while (encima != nullptr && encima != &nodo) encima = encima->padre_;
    return encima != nullptr;
}

// The node to attach for one that is given. Only a node with children can stand above this one.
Arbol& Arbol::adopta(Arbol& hijo) {
    reanima();
    hijo.reanima();
    if (&hijo == this || (!hijo.GetEsHoja() && tieneEncima(hijo)))
        throw ArgumentoNoValido(
            u"Argumento o llamada a procedimiento no válidos: un nodo no puede colgar de sí "
            u"mismo ni de lo que tiene debajo");
    const bool libre = hijo.padre_ == nullptr && &hijo.arbol() == &arbol();
    Arbol& adoptado = libre ? hijo : arbol().copia(hijo);
    adoptado.padre_ = this;
    return adoptado;
}

void Arbol::SetHijo(Arbol& hijo) {
    Arbol& adoptado = adopta(hijo);
    arbol().hazSitio(*this);
    *--hijos_ = &adoptado;
    ++numHijos_;
}

void Arbol::SetHijoIzquierda(Arbol& hijo) {
    Arbol& adoptado = adopta(hijo);
    arbol().hazSitio(*this);
    hijos_[numHijos_] = &adoptado;
    ++numHijos_;
}

} // namespace norvik::inline v0_2
