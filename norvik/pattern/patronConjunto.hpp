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

namespace norvik {

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

    /// The automata outlive it.
    explicit AutomataConjunto(std::vector<Automata*> miembros);

    /// The matches of `cuales`, at least one, that start at `inicio`, a position of the subject.
    void coinciden(std::u16string_view sujeto, std::size_t inicio, std::uint64_t cuales, Intentos& intentos);

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
    static constexpr Numero desconocido = 0xFFFF;

    void afina(const Automata& automata);
    Numero inicial(std::uint64_t cuales, char16_t unidad);
    Numero siguiente(Numero estado, char16_t unidad) {
        if (unidad >= clases_.size()) return desconocido;
        const Numero conocido = transiciones_[estado * numClases_ + clases_[unidad]];
        return conocido != desconocido ? conocido : calcula(estado, unidad);
    }
    Numero calcula(Numero estado, char16_t unidad);
    Numero numeroDe(Miembros miembros);
    std::size_t saltaEnVano(std::u16string_view sujeto, std::size_t i, std::size_t desde, std::size_t hasta,
                            Numero primero, Numero estado);

    std::vector<Automata*> automatas_;
    std::array<std::uint8_t, 256> clases_{}; // units that no member tells apart
    std::size_t numClases_ = 1;
    std::vector<std::uint64_t> vivos_;   // of each state: who is still walking
    std::vector<std::uint64_t> aceptan_; // … and whose match is complete
    std::vector<Numero> transiciones_;   // state × class
    std::vector<Miembros> miembros_;     // of each state
    std::map<Miembros, Numero> numeros_;
    std::map<std::uint64_t, Numero> iniciales_;
    std::array<std::pair<std::uint64_t, Numero>, 256> ultimaInicial_{}; // by first unit
};

} // namespace norvik
