// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/errores.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

/// A rule as it was stored.
struct Regla {
    std::u16string cabeza;
    std::u16string cuerpo;
    std::int16_t elementos = 0; ///< symbols of the body, without a Ø at its end
};

/// The rules of a grammar, as they were stored. Indexes are 1-based; references to a rule hold while the
/// rules stay, more being stored included.
class Reglas {
public:
    static constexpr std::int16_t maximo = 1000;

    /// Stores one rule for each alternative of the body (separated by "|").
    /// Raises `SubindiceFueraDeIntervalo` at rule 1001; those stored before stay.
    void guarda(std::u16string_view cabeza, std::u16string_view cuerpo);
    /// Rules are 1..1000, unused ones empty; others raise `SubindiceFueraDeIntervalo`.
    const Regla& en(int regla) const {
        static const Regla sinUsar;
        if (regla < 1 || regla > maximo) throw SubindiceFueraDeIntervalo(u"la regla", regla, 1, maximo);
        const auto i = static_cast<std::size_t>(regla) - 1;
        return i < reglas_.size() ? reglas_[i] : sinUsar;
    }
    int total() const { return static_cast<int>(reglas_.size()); }
    /// The rules before the first without a head.
    std::int16_t numReglas() const { return conCabeza_; }
    auto begin() const { return reglas_.begin(); }
    auto end() const { return reglas_.end(); }

private:
    std::deque<Regla> reglas_;
    std::int16_t conCabeza_ = 0;
};

/// «S -> a B; B -> Ø»
std::u16string enTexto(const Reglas& reglas);

/// 1-based position of a symbol in a body, 0 when it is not found. The last symbol of a body is missed when
/// an earlier one, not the first, has the same beginning.
std::int16_t estaEnRegla(std::u16string_view cuerpo, std::u16string_view simbolo);
/// A body with a dot before its symbol at a 0-based position.
std::u16string dameReglaString(std::u16string_view cuerpo, std::int16_t punto);

/// Calls with each symbol of a text, which are separated by spaces.
template <typename Accion>
void paraCadaSimbolo(std::u16string_view texto, const Accion& accion) {
    for (std::size_t i = texto.find_first_not_of(u' '); i < texto.size();) {
        const std::size_t fin = std::min(texto.find(u' ', i), texto.size());
        accion(texto.substr(i, fin - i));
        i = texto.find_first_not_of(u' ', fin);
    }
}

} // namespace norvik::inline v0_2
