// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/numeros.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace norvik {

/// An ordered set of symbols or rule indexes; members keep the order of their first insertion.
/// Look-ups take constant time; removals rebuild the index.
class NORVIK_API conjunto {
public:
    using Valor = std::variant<std::u16string, std::int16_t>;

    conjunto() = default;
    conjunto(const conjunto& otro);
    conjunto(conjunto&&) noexcept = default;
    conjunto& operator=(const conjunto& otro);
    conjunto& operator=(conjunto&&) noexcept = default;
    ~conjunto() = default;

    std::u16string nombre;

    void aniadeElementosConjunto(const conjunto& otro);
    void borrar(const Valor& valor);
    /// Forgets the members and the name.
    void borrarTodo();
    bool contieneCadenaVacia() const;
    /// Member at a 1-based position; raises `IndiceNoValido`.
    const Valor& elementoAt(std::int16_t posicion) const;
    /// The same member as a symbol; raises `NoCoincidenLosTipos` for a number.
    std::u16string_view simboloAt(std::int16_t posicion) const;
    void eliminaCadenaVacia();
    bool esVacio() const;
    void insertar(const Valor& valor);
    bool perteneceA(const Valor& valor) const;
    /// 1-based position of a symbol, 0 when it is no member.
    std::int16_t posicion(std::u16string_view simbolo) const;
    /// The members joined by ", ", without braces.
    std::u16string toStringConjunto() const;
    /// Raises `Desbordamiento` beyond 32 767 members.
    std::int16_t totalElementos() const { return a16(elementos_.size()); }

private:
    template <typename Clave>
    std::size_t ranura(const Clave& clave) const;
    template <typename Clave>
    std::size_t busca(const Clave& clave) const;
    std::size_t buscaValor(const Valor& valor) const;
    std::size_t ranuraDe(const Valor& valor) const;
    void indexa(std::size_t ranuras);

    std::vector<Valor> elementos_;
    std::vector<std::uint32_t> ranuras_; // open addressing: position of the member, 0 when free
};

} // namespace norvik
