// SPDX-License-Identifier: MIT

#include "norvik/grammar/conjunto.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/huella.hpp"
#include "norvik/base/numeros.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <utility>

// Members stand in a vector in order of insertion; an open-addressing table of their positions, a power of
// two at most half full, finds them. Its room is made before the member, so that whoever has no memory for
// either is left with the set as it was.
namespace norvik::inline v0_2 {

namespace {

bool esIgual(const conjunto::Valor& valor, std::u16string_view simbolo) {
    const auto* const texto = std::get_if<std::u16string>(&valor);
    return texto != nullptr && *texto == simbolo;
}

bool esIgual(const conjunto::Valor& valor, std::int16_t numero) {
    const auto* const otro = std::get_if<std::int16_t>(&valor);
    return otro != nullptr && *otro == numero;
}

std::size_t huella(std::int16_t numero) {
    return static_cast<std::size_t>(numero);
}

// The string is made before the variant: that of libstdc++ 12 is undone wrongly when it is the one to find
// that there is no memory.
conjunto::Valor copiaDe(const conjunto::Valor& valor) {
    if (const auto* const texto = std::get_if<std::u16string>(&valor)) return std::u16string(*texto);
    return std::get<std::int16_t>(valor);
}

} // namespace

conjunto::conjunto(const conjunto& otro) : nombre(otro.nombre), ranuras_(otro.ranuras_) {
    elementos_.reserve(otro.elementos_.size());
    for (const Valor& valor : otro.elementos_) elementos_.push_back(copiaDe(valor));
}

conjunto& conjunto::operator=(const conjunto& otro) {
    return *this = conjunto(otro);
}

/// The slot that holds the key, or the free one where it belongs.
template <typename Clave>
std::size_t conjunto::ranura(const Clave& clave) const {
    const std::size_t mascara = ranuras_.size() - 1;
    std::size_t i = huella(clave) & mascara;
    while (ranuras_[i] != 0 && !esIgual(elementos_[ranuras_[i] - 1], clave)) i = (i + 1) & mascara;
    return i;
}

template <typename Clave>
std::size_t conjunto::busca(const Clave& clave) const {
    return ranuras_.empty() ? 0 : ranuras_[ranura(clave)];
}

std::size_t conjunto::buscaValor(const Valor& valor) const {
    return ranuras_.empty() ? 0 : ranuras_[ranuraDe(valor)];
}

std::size_t conjunto::ranuraDe(const Valor& valor) const {
    if (const auto* const texto = std::get_if<std::u16string>(&valor))
        return ranura(std::u16string_view(*texto));
    return ranura(std::get<std::int16_t>(valor));
}

void conjunto::indexa(std::size_t ranuras) {
    ranuras_.assign(ranuras, 0);
    for (std::size_t i = 0; i < elementos_.size(); ++i)
        ranuras_[ranuraDe(elementos_[i])] = static_cast<std::uint32_t>(i + 1);
}

std::int16_t conjunto::totalElementos() const {
    return a16(elementos_.size());
}

void conjunto::insertar(const Valor& valor) {
    if (!perteneceA(valor)) insertar(copiaDe(valor));
}

void conjunto::insertar(Valor&& valor) {
    constexpr std::size_t minimo = 16;
    if ((elementos_.size() + 1) * 2 > ranuras_.size()) indexa(std::max(minimo, ranuras_.size() * 2));
    const std::size_t sitio = ranuraDe(valor);
    if (ranuras_[sitio] != 0) return;
    elementos_.push_back(std::move(valor));
    ranuras_[sitio] = static_cast<std::uint32_t>(elementos_.size());
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

} // namespace norvik::inline v0_2
