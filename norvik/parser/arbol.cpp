// SPDX-License-Identifier: MIT

// The operations of a node. Descents and searches keep their pending nodes in a list of their own: a tree may
// be as deep as its text is long.
#include "norvik/parser/arbol.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/parser/arbolSintactico.hpp"

#include <iterator>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

[[noreturn]] void noEsNumero(std::u16string_view texto) {
    throw NoCoincidenLosTipos(u"No coinciden los tipos: «" + std::u16string(texto) +
                              u"» no es el número de una regla");
}

// A decimal number of 16 bits. The value stops growing once it cannot fit.
std::int16_t leeNumero(std::u16string_view texto) {
    constexpr std::u16string_view blancos = u" \t\r\n";
    const auto inicio = texto.find_first_not_of(blancos);
    if (inicio == std::u16string_view::npos) noEsNumero(texto);
    std::u16string_view cifras = texto.substr(inicio, texto.find_last_not_of(blancos) - inicio + 1);
    const bool negativo = cifras.front() == u'-';
    if (negativo || cifras.front() == u'+') cifras.remove_prefix(1);
    if (cifras.empty()) noEsNumero(texto);
    std::int32_t valor = 0;
    for (const char16_t c : cifras) {
        if (c < u'0' || c > u'9') noEsNumero(texto);
        if (valor < 100000) valor = valor * 10 + (c - u'0');
    }
    return a16(negativo ? -valor : valor, u"el número de la regla");
}

void anotaNodo(const Arbol& nodo, std::size_t nivel, std::u16string& texto) {
    texto.append(2 * nivel, u' ');
    if (nodo.GetNumRegla() == -1) {
        texto.append(u"'").append(nodo.GetLexema()).append(u"' (").append(aTexto(nodo.GetLinea()));
        texto.append(u", ").append(aTexto(nodo.GetColumna())).append(u")");
    } else {
        texto.append(nodo.GetNomRegla()).append(u" -> ").append(nodo.GetRegla());
        texto.append(u" [").append(aTexto(nodo.GetNumRegla())).append(u"]");
    }
    texto.append(u"\n");
}

} // namespace

std::u16string Arbol::GetULexema() const {
    return aMayusculas(GetLexema());
}

std::int16_t Arbol::GetNumHijos() const {
    static constexpr std::u16string_view que = u"el número de hijos";
    return a16(hijos().size(), que);
}

Arbol* Arbol::GetHijo(std::int16_t numHijo) const {
    if (numHijo < 1)
        throw IndiceNoValido(u"Índice no válido: los hijos de un nodo cuentan desde 1, y se pidió el " +
                             aTexto(numHijo));
    const auto indice = static_cast<std::size_t>(numHijo) - 1;
    return indice < hijos().size() ? hijos()[indice] : nullptr;
}

void Arbol::SetLexema(std::u16string_view datoNodo) {
    reanima();
    const std::u16string_view copia = arbol().guardaTexto(datoNodo);
    lexema_ = copia.data();
    largoLexema_ = estrecha<std::uint32_t>(copia.size());
}

void Arbol::SetNomRegla(std::u16string_view reglaNodo) {
    ponRegla(reglaNodo, GetRegla(), GetNumRegla());
}

void Arbol::SetRegla(std::u16string_view reglaNodo) {
    ponRegla(GetNomRegla(), reglaNodo, GetNumRegla());
}

void Arbol::SetNumRegla(std::u16string_view numeroRegla) {
    ponRegla(GetNomRegla(), GetRegla(), leeNumero(numeroRegla));
}

void Arbol::ponRegla(std::u16string_view nombre, std::u16string_view cuerpo, std::int16_t numero) {
    const FichaRegla& ficha = arbol().guardaRegla(nombre, cuerpo, numero);
    reanima();
    regla_ = &ficha;
}

/// A node of a tree that was dropped becomes one of the present tree, as it reads.
void Arbol::reanima() {
    if (!regla_->retirada) return;
    limpia();
    padre_ = nullptr;
}

void Arbol::limpia() {
    regla_ = &arbol().sinRegla();
    hijos_ = nullptr;
    lexema_ = nullptr;
    numHijos_ = 0;
    conSitio_ = 0;
    largoLexema_ = 0;
}

void Arbol::Inicializa() {
    reanima();
    std::vector<Arbol*> pendientes = {this};
    while (!pendientes.empty()) {
        Arbol* const nodo = pendientes.back();
        pendientes.pop_back();
        for (Arbol* const hijo : nodo->hijos()) {
            hijo->padre_ = nullptr;
            pendientes.push_back(hijo);
        }
        nodo->limpia();
    }
}

// The next node in a direction: null from a leaf, and for a direction other than the two.
Arbol* Arbol::paso(Direccion direccion) const {
    if (GetEsHoja()) return nullptr;
    if (direccion == Norvik_Izquierda) return hijos().front();
    if (direccion == Norvik_Derecha) return hijos().back();
    return nullptr;
}

Arbol& Arbol::GetNDescendienteEnDireccion(std::int16_t ordenDescendencia, Direccion direccion) {
    Arbol* nodo = this;
    for (std::int32_t i = 0; i < ordenDescendencia; ++i) {
        Arbol* const siguiente = nodo->paso(direccion);
        if (siguiente == nullptr) break;
        nodo = siguiente;
    }
    return *nodo;
}

Arbol& Arbol::GetUltimoDescendienteEnDireccion(Direccion direccion) {
    Arbol* nodo = this;
    while (Arbol* const siguiente = nodo->paso(direccion)) nodo = siguiente;
    return *nodo;
}

Arbol* Arbol::GetDescendienteConRegla(std::int16_t numReglaBusqueda) {
    std::vector<Arbol*> pendientes = {this};
    while (!pendientes.empty()) {
        Arbol* const nodo = pendientes.back();
        pendientes.pop_back();
        if (nodo->GetEsHoja()) continue;
        if (nodo->GetNumRegla() == numReglaBusqueda) return nodo;
        const auto hijos = nodo->hijos();
        pendientes.insert(pendientes.end(), std::make_reverse_iterator(hijos.end()),
                          std::make_reverse_iterator(hijos.begin()));
    }
    return nullptr;
}

Arbol* Arbol::GetDescendienteConReglaEnDireccion(std::int16_t numReglaBusqueda, Direccion direccion) {
    if (direccion != Norvik_Izquierda && direccion != Norvik_Derecha) return nullptr;
    Arbol* nodo = this;
    while (nodo != nullptr && nodo->GetNumRegla() != numReglaBusqueda) nodo = nodo->paso(direccion);
    return nodo;
}

std::u16string Arbol::toString() const {
    struct Pendiente {
        const Arbol* nodo;
        std::size_t nivel;
    };
    std::u16string texto;
    std::vector<Pendiente> pendientes = {{this, 0}};
    while (!pendientes.empty()) {
        const auto [nodo, nivel] = pendientes.back();
        pendientes.pop_back();
        anotaNodo(*nodo, nivel, texto);
        const auto hijos = nodo->hijos();
        for (auto i = hijos.size(); i > 0; --i) pendientes.push_back({hijos[i - 1], nivel + 1});
    }
    return texto;
}

} // namespace norvik::inline v0_2
