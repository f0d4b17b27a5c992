// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/pattern/patronAutomata.hpp"

#include <array>
#include <bit>
#include <cstdint>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// Calls an action with the number of each bit of a mask.
template <typename Accion>
void paraCadaBit(std::uint64_t mascara, Accion accion) {
    for (; mascara != 0; mascara &= mascara - 1) accion(static_cast<std::size_t>(std::countr_zero(mascara)));
}

/// The automata of several patterns, which walk over a text together. Masks have a bit for each, by its
/// place.
class AutomataConjunto {
public:
    static constexpr std::size_t maximo = 64;

    /// What attempts at one position came to.
    struct Intentos {
        std::uint64_t coinciden = 0;
        std::uint64_t indecisos = 0; ///< to be asked one by one
        /// By place: the end of the match; without one, attempts before here are known to be in vain. Not set
        /// for the undecided ones.
        std::array<std::size_t, maximo> fin;
    };

    /// At most `maximo` automata, which outlive it.
    explicit AutomataConjunto(std::vector<Automata*> miembros);

    /// The matches of `cuales`, at least one, that start at `inicio`, a position of the subject. Raises what
    /// `Presupuesto::exige` does.
    void coinciden(std::u16string_view sujeto, std::size_t inicio, std::uint64_t cuales, Intentos& intentos,
                   Gasto& gasto);

private:
    using Numero = std::uint16_t;
    struct Miembro {
        std::uint8_t lugar;
        Automata::Numero estado;

        bool operator<(const Miembro& otro) const {
            return std::tie(lugar, estado) < std::tie(otro.lugar, otro.estado);
        }
    };
    using Miembros = std::vector<Miembro>;
    struct Mascaras {
        std::uint64_t vivos = 0;          // who is still walking
        std::uint64_t completos = 0;      // whose match is complete here …
        std::uint64_t completosAntes = 0; // … and where the last character began

        std::uint64_t todosCompletos() const { return completos | completosAntes; }
    };
    static constexpr Numero desconocido = 0xFFFF;

    void afina(const Automata& automata);
    Detras detrasEn(std::u16string_view sujeto, std::size_t posicion) const {
        return miraAtras_ ? detrasDe(sujeto, posicion) : Detras::Principio;
    }
    Numero inicial(std::uint64_t cuales, std::u16string_view sujeto, std::size_t posicion, Gasto& gasto);
    Numero siguiente(Numero estado, char16_t unidad, Gasto& gasto) {
        if (unidad >= clases_.size()) return desconocido;
        const Numero conocido = transiciones_[estado * numClases_ + clases_[unidad]];
        return conocido != desconocido ? conocido : calcula(estado, unidad, gasto);
    }
    Numero calcula(Numero estado, char16_t unidad, Gasto& gasto);
    Numero numeroDe(Miembros miembros, Gasto& gasto);
    Mascaras mascarasDe(const Miembros& miembros) const;
    std::size_t finDeEstancia(Numero estado, std::u16string_view sujeto, std::size_t i,
                              std::size_t tope) const;
    std::size_t saltaEnVano(std::u16string_view sujeto, std::size_t i, std::size_t desde, std::size_t hasta,
                            std::uint64_t cuales, Numero primero, Numero estado, Gasto& gasto);

    std::vector<Automata*> automatas_;
    bool miraAtras_ = false;                 // one of them does
    std::array<std::uint8_t, 256> clases_{}; // units that no member tells apart
    std::size_t numClases_ = 1;
    std::map<Miembros, Numero> numeros_;
    std::vector<const Miembros*> miembros_; // of each state
    std::vector<Mascaras> mascaras_;        // of each state
    std::vector<Numero> transiciones_;      // state × class
    std::map<std::pair<Detras, std::uint64_t>, Numero> iniciales_;
    struct Inicial {
        std::uint64_t cuales = 0;
        Numero numero = desconocido;
    };
    std::array<std::array<Inicial, 256>, 3> ultimaInicial_{}; // by what stands behind, and the first unit
};

} // namespace norvik::inline v0_2
