#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace norvik {

/// An ordered set of symbols or rule indexes; members keep the order of their first insertion.
class conjunto {
public:
    using Valor = std::variant<std::u16string, std::int16_t>;

    std::u16string nombre;

    void aniadeElementosConjunto(const conjunto& otro);
    void borrar(const Valor& valor);
    void borrarTodo();
    bool contieneCadenaVacia() const;
    /// Member at a 1-based position; raises `IndiceNoValido`.
    const Valor& elementoAt(std::int16_t posicion) const;
    void eliminaCadenaVacia();
    bool esVacio() const;
    void insertar(const Valor& valor);
    bool perteneceA(const Valor& valor) const;
    /// The members joined by ", ", without braces.
    std::u16string toStringConjunto() const;
    /// Raises `Desbordamiento` beyond 32 767 members.
    std::int16_t totalElementos() const;

private:
    std::vector<Valor> elementos_;
};

} // namespace norvik
