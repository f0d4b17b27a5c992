// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/pattern/mayusculas.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The search of one word, by Knuth, Morris and Pratt (1977): no character of a text is gone back to, however
/// the word repeats itself.
class BusquedaPalabra {
public:
    /// A word of 1 to 32,767 characters.
    BusquedaPalabra(std::u16string_view palabra, bool ignoraMayusculas);

    /// Calls an action with the position of each occurrence that does not overlap the one before. Raises what
    /// `Presupuesto::exige` does.
    template <typename Accion>
    void busca(std::u16string_view texto, Gasto& gasto, Accion accion) const {
        std::size_t tomadas = 0;
        for (std::size_t i = 0; i < texto.size(); ++i) {
            if (i % tramo == 0) gasto.anota(tramo);
            tomadas = avanza(tomadas, texto[i]);
            if (tomadas < palabra_.size()) continue;
            accion(i + 1 - tomadas);
            tomadas = 0;
        }
    }
    std::size_t longitud() const { return palabra_.size(); }

private:
    static constexpr std::size_t tramo = 4096;

    char16_t forma(char16_t unidad) const { return ignoraMayusculas_ ? pliega(unidad) : unidad; }
    // How much of the word stands before the next character, once the text goes on with a unit.
    std::size_t avanza(std::size_t tomadas, char16_t unidad) const {
        const char16_t buscada = forma(unidad);
        while (palabra_[tomadas] != buscada) {
            if (tomadas == 0) return 0;
            tomadas = bordes_[tomadas - 1];
        }
        return tomadas + 1;
    }

    std::u16string palabra_; // folded when case is ignored
    bool ignoraMayusculas_;
    std::vector<std::uint16_t>
        bordes_; // of each start of the word: the longest other start that ends it, too
};

} // namespace norvik::inline v0_2
