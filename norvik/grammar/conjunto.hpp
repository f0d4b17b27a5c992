// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace norvik::inline v0_2 {

/// Un conjunto de símbolos o de números de regla, en el orden en que se insertaron por primera vez. Buscar
/// cuesta lo mismo con cualquier tamaño; quitar cuesta lo que el conjunto mide.
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
    /// Olvida los elementos y el nombre.
    void borrarTodo();
    bool contieneCadenaVacia() const;
    /// El elemento de un lugar, desde 1; lanza `IndiceNoValido`.
    const Valor& elementoAt(std::int16_t posicion) const;
    /// Lo mismo como símbolo; lanza `NoCoincidenLosTipos` con un número.
    std::u16string_view simboloAt(std::int16_t posicion) const;
    void eliminaCadenaVacia();
    bool esVacio() const;
    void insertar(const Valor& valor);
    void insertar(Valor&& valor);
    bool perteneceA(const Valor& valor) const;
    /// Lugar de un símbolo, desde 1; 0 si no está.
    std::int16_t posicion(std::u16string_view simbolo) const;
    /// Los elementos con «, » entre ellos, sin llaves.
    std::u16string toStringConjunto() const;
    /// Lanza `Desbordamiento` con más de 32 767.
    std::int16_t totalElementos() const;

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

} // namespace norvik::inline v0_2
