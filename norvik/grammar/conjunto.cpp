// SPDX-License-Identifier: MIT

#include "norvik/grammar/conjunto.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <functional>
#include <type_traits>

// Members stand in a vector in order of insertion; an open-addressing table of their positions, a power of
// two at most half full, finds them.
namespace norvik {

namespace {

bool esIgual(const conjunto::Valor& valor, std::u16string_view simbolo) {
    const auto* const texto = std::get_if<std::u16string>(&valor);
    return texto != nullptr && *texto == simbolo;
}

bool esIgual(const conjunto::Valor& valor, std::int16_t numero) {
    const auto* const otro = std::get_if<std::int16_t>(&valor);
    return otro != nullptr && *otro == numero;
}

} // namespace

/// The slot that holds the key, or the free one where it belongs.
template <typename Clave>
std::size_t conjunto::ranura(const Clave& clave) const {
    const std::size_t mascara = ranuras_.size() - 1;
    std::size_t i = std::hash<Clave>{}(clave)&mascara;
    while (ranuras_[i] != 0 && !esIgual(elementos_[ranuras_[i] - 1], clave)) i = (i + 1) & mascara;
    return i;
}

template <typename Clave>
std::size_t conjunto::busca(const Clave& clave) const {
    return ranuras_.empty() ? 0 : ranuras_[ranura(clave)];
}

std::size_t conjunto::buscaValor(const Valor& valor) const {
    if (const auto* const texto = std::get_if<std::u16string>(&valor))
        return busca(std::u16string_view(*texto));
    return busca(std::get<std::int16_t>(valor));
}

void conjunto::indexa(std::size_t ranuras) {
    ranuras_.assign(ranuras, 0);
    for (std::size_t i = 0; i < elementos_.size(); ++i) {
        const auto posicion = static_cast<std::uint32_t>(i + 1);
        if (const auto* const texto = std::get_if<std::u16string>(&elementos_[i]))
            ranuras_[ranura(std::u16string_view(*texto))] = posicion;
        else
            ranuras_[ranura(std::get<std::int16_t>(elementos_[i]))] = posicion;
    }
}

void conjunto::insertar(const Valor& valor) {
    if (buscaValor(valor) != 0) return;
    elementos_.push_back(valor);
    constexpr std::size_t minimo = 16;
    if (elementos_.size() * 2 > ranuras_.size()) return indexa(std::max(minimo, ranuras_.size() * 2));
    const auto posicion = static_cast<std::uint32_t>(elementos_.size());
    if (const auto* const texto = std::get_if<std::u16string>(&valor))
        ranuras_[ranura(std::u16string_view(*texto))] = posicion;
    else
        ranuras_[ranura(std::get<std::int16_t>(valor))] = posicion;
}

void conjunto::aniadeElementosConjunto(const conjunto& otro) {
    if (this == &otro) return;
    for (const Valor& valor : otro.elementos_) insertar(valor);
}

void conjunto::borrar(const Valor& valor) {
    const std::size_t sitio = buscaValor(valor);
    if (sitio == 0) return;
    elementos_.erase(elementos_.begin() + static_cast<std::ptrdiff_t>(sitio - 1));
    indexa(ranuras_.size());
}

void conjunto::borrarTodo() {
    elementos_.clear();
    ranuras_.clear();
    nombre.clear();
}

bool conjunto::contieneCadenaVacia() const {
    return busca(cadenaVacia) != 0;
}

const conjunto::Valor& conjunto::elementoAt(std::int16_t posicion) const {
    if (posicion < 1 || static_cast<std::size_t>(posicion) > elementos_.size())
        throw IndiceNoValido(u"Índice no válido: el conjunto tiene " +
                             aTexto(static_cast<std::int64_t>(elementos_.size())) +
                             u" elementos, y se pide el " + aTexto(posicion));
    return elementos_[static_cast<std::size_t>(posicion) - 1];
}

std::u16string_view conjunto::simboloAt(std::int16_t posicion) const {
    const auto* const texto = std::get_if<std::u16string>(&elementoAt(posicion));
    if (texto == nullptr)
        throw NoCoincidenLosTipos(u"No coinciden los tipos: el elemento " + aTexto(posicion) +
                                  u" del conjunto es un número y no un símbolo");
    return *texto;
}

void conjunto::eliminaCadenaVacia() {
    borrar(std::u16string(cadenaVacia));
}

bool conjunto::esVacio() const {
    return elementos_.empty();
}

bool conjunto::perteneceA(const Valor& valor) const {
    return buscaValor(valor) != 0;
}

std::int16_t conjunto::posicion(std::u16string_view simbolo) const {
    return a16(busca(simbolo));
}

std::u16string conjunto::toStringConjunto() const {
    std::u16string texto;
    for (const Valor& valor : elementos_) {
        if (&valor != &elementos_.front()) texto += u", ";
        if (const auto* const simbolo = std::get_if<std::u16string>(&valor))
            texto += *simbolo;
        else
            texto += aTexto(std::get<std::int16_t>(valor));
    }
    return texto;
}

} // namespace norvik
