// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/pattern/mapaCoincidencias.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// Short plain words that are searched together in one pass over a text.
class IndicePalabras {
public:
    /// Characters of the longest word that it takes.
    static constexpr std::size_t maximo = 32;

    /// A word of 1 to `maximo` characters, which is a pattern by its place. Places come in ascending order.
    void aniade(std::u16string_view palabra, bool ignoraMayusculas, std::int32_t patron);
    /// To be called after the last word.
    void ordena();
    /// Stores into the map every occurrence of every word, as each one's own search would find it. Raises
    /// what `Presupuesto::exige` does.
    void busca(std::u16string_view texto, Gasto& gasto, MapaCoincidencias& mapa);

private:
    static constexpr std::uint32_t ninguna = 0xFFFFFFFF;

    struct Palabra {
        std::u16string plegada;
        std::u16string exacta;       ///< empty when case is ignored
        std::uint64_t clave = 0;     ///< its first four folded characters …
        std::uint64_t relevante = 0; ///< … and which bits of them it has
        std::int32_t patron = 0;
        std::uint32_t anterior = ninguna; ///< the last one in order that this one begins with or is equal to
        std::size_t libre = 0;            ///< end of the word's last occurrence in the search under way
    };
    struct Entrada {
        std::uint64_t clave = 0; ///< the word's
        std::uint32_t palabra = 0;
    };
    struct Cubo {
        std::uint64_t segundos = 0;    ///< the low six bits of second characters, all for a word of one
        std::vector<Entrada> entradas; ///< in order
        std::int32_t signo = -1; ///< the pattern when all it has is a word of one character without case …
        char16_t caracter = 0;   ///< … this one
    };

    void enlaza();
    void reparte(std::uint32_t palabra);
    void buscaSignos();
    std::uint32_t candidata(const Cubo& cubo, std::uint64_t clave, std::u16string_view resto) const;
    std::uint32_t candidataEntre(std::span<const Entrada> iguales, std::u16string_view resto) const;
    void prueba(const Cubo& cubo, std::u16string_view texto, std::size_t posicion, MapaCoincidencias& mapa);

    std::vector<Palabra> palabras_;
    std::array<Cubo, 256> cubos_{}; ///< by the low byte of the first character
};

} // namespace norvik::inline v0_2
