// How the nodes of a tree hang together. A parser's node has all its children side by side in the arena, and
// a table of exactly their number; the first attachment by hand moves the table to one with room at both
// ends, which doubles, so that each attachment takes constant time on the average. What is left behind is
// taken back with the tree.
#include "norvik/parser/arbolSintactico.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"

#include <algorithm>
#include <memory>
#include <vector>

namespace norvik {

void ArbolSintactico::reinicia() {
    raiz_.limpia();
    raiz_.padre_ = nullptr;
    arena_.reinicia();
}

Arbol& ArbolSintactico::nuevoNodo() {
    return *std::construct_at(arena_.reserva<Arbol>(1), Arbol::Clave{}, *this);
}

std::u16string_view ArbolSintactico::guardaTexto(std::u16string_view texto) {
    auto* const copia = arena_.reserva<char16_t>(texto.size());
    std::ranges::copy(texto, copia);
    return {copia, texto.size()};
}

const TextosRegla& ArbolSintactico::guardaRegla(std::u16string_view nombre, std::u16string_view cuerpo) {
    return *std::construct_at(arena_.reserva<TextosRegla>(1),
                              TextosRegla{guardaTexto(nombre), guardaTexto(cuerpo)});
}

void ArbolSintactico::hazHoja(Arbol& nodo, std::u16string_view lexema, std::int32_t linea,
                              std::int32_t columna) {
    nodo.lexema_ = lexema.data();
    nodo.largoLexema_ = static_cast<std::uint32_t>(lexema.size());
    nodo.linea_ = linea;
    nodo.columna_ = columna;
}

std::span<Arbol* const> ArbolSintactico::hazRegla(Arbol& nodo, std::int16_t numRegla,
                                                  const TextosRegla& textos, std::size_t numHijos) {
    nodo.numRegla_ = numRegla;
    nodo.textos_ = &textos;
    if (numHijos == 0) return {};
    // One record: the description of the children, the table of them, and they themselves.
    static_assert(alignof(Arbol::Hijos) <= alignof(void*) && alignof(Arbol) <= alignof(void*));
    std::byte* const registro =
        arena_.reservaBytes(sizeof(Arbol::Hijos) + numHijos * (sizeof(Arbol*) + sizeof(Arbol)));
    auto** const tabla = reinterpret_cast<Arbol**>(registro + sizeof(Arbol::Hijos));
    auto* const hijos = reinterpret_cast<Arbol*>(tabla + numHijos);
    for (std::size_t i = 0; i < numHijos; ++i) {
        Arbol* const hijo = std::construct_at(hijos + i, Arbol::Clave{}, *this);
        hijo->padre_ = &nodo;
        std::construct_at(tabla + i, hijo);
    }
    const Arbol::Hijos todos{tabla, static_cast<std::uint32_t>(numHijos)};
    nodo.hijos_ = std::construct_at(reinterpret_cast<Arbol::Hijos*>(registro), todos);
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
        const auto& textos = guardaRegla(de->GetNomRegla(), de->GetRegla());
        const auto hijos = hazRegla(*a, de->numRegla_, textos, de->hijos().size());
        for (std::size_t i = 0; i < hijos.size(); ++i) pendientes.push_back({de->hijos()[i], hijos[i]});
    }
    return raiz;
}

// Room for one child more at either end.
Arbol::Hijos& ArbolSintactico::amplia(Arbol& nodo) {
    if (nodo.hijos_ == nullptr)
        nodo.hijos_ = std::construct_at(arena_.reserva<Arbol::Hijos>(1), Arbol::Hijos{});
    Arbol::Hijos& hijos = *nodo.hijos_;
    if (hijos.libresDelante > 0 && hijos.libresDetras > 0) return hijos;
    const std::uint32_t libres = hijos.numero + 4;
    auto** const tabla = arena_.reserva<Arbol*>(std::size_t{hijos.numero} + 2 * std::size_t{libres}) + libres;
    std::copy_n(hijos.primero, hijos.numero, tabla);
    hijos = {tabla, hijos.numero, libres, libres};
    return hijos;
}

bool Arbol::tieneEncima(const Arbol& nodo) const {
    const Arbol* encima = this;
    while (encima != nullptr && encima != &nodo) encima = encima->padre_;
    return encima != nullptr;
}

// The node to attach for one that is given. Only a node with children can stand above this one.
Arbol& Arbol::adopta(Arbol& hijo) {
    if (&hijo == this || (!hijo.GetEsHoja() && tieneEncima(hijo))) throw ArgumentoNoValido();
    const bool libre = hijo.padre_ == nullptr && hijo.propietario_ == propietario_;
    Arbol& adoptado = libre ? hijo : propietario_->copia(hijo);
    adoptado.padre_ = this;
    return adoptado;
}

void Arbol::SetHijo(Arbol& hijo) {
    Arbol& adoptado = adopta(hijo);
    Hijos& hijos = propietario_->amplia(*this);
    *--hijos.primero = &adoptado;
    --hijos.libresDelante;
    ++hijos.numero;
}

void Arbol::SetHijoIzquierda(Arbol& hijo) {
    Arbol& adoptado = adopta(hijo);
    Hijos& hijos = propietario_->amplia(*this);
    hijos.primero[hijos.numero] = &adoptado;
    --hijos.libresDetras;
    ++hijos.numero;
}

} // namespace norvik
