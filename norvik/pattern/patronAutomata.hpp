// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/pattern/patronPrograma.hpp"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <tuple>
#include <unordered_set>
#include <vector>

namespace norvik::inline v0_2 {

/// What an attempt at one position came to. `Indeciso`: this way of matching cannot tell.
struct Intento {
    enum class Tipo : std::uint8_t { Coincide, Nada, Indeciso };
    Tipo tipo = Tipo::Nada;
    std::size_t fin = 0; ///< end of the match; without one, attempts before here are known to be in vain
};

/// What stands before a position, as far as assertions ask for it.
enum class Detras : std::uint8_t { Principio, NoPalabra, Palabra };
Detras detrasDe(std::u16string_view sujeto, std::size_t posicion);

/// A deterministic automaton of a pattern, built while it runs: one step a character. A failed step leaves it
/// as it was.
class Automata {
public:
    using Numero = std::uint16_t;                           ///< a state's
    static constexpr Numero muerto = 0;                     ///< no match from here on
    static constexpr Numero desconocido = 0xFFFF;           ///< there is no room for the state
    enum class Completa : std::uint8_t { No, Aqui, Antes }; ///< … where the last character began

    /// Nothing when the program looks ahead, counts or refers back, or is too large for it or for the room.
    /// The program outlives the automaton. Raises what `Presupuesto::exige` does, as every step can that
    /// makes a state.
    static std::optional<Automata> de(const Programa& programa, Gasto& gasto);

    /// What walks over one subject leave for the next ones: at some positions, states from which no match is
    /// completed.
    using Recuerdo = std::unordered_set<std::uint64_t>;
    static constexpr std::size_t bytesPorRecuerdo = 48; ///< about, of the room

    /// The match that starts at `inicio`; undecided once the automaton has grown too large. `recuerdo` is
    /// empty at the first attempt on a subject. Raises what `Presupuesto::exige` does.
    Intento coincide(std::u16string_view sujeto, std::size_t inicio, Recuerdo& recuerdo, Gasto& gasto);

    /// The same step by step. Only a pattern that looks back has more than one initial state.
    bool miraAtras() const { return miraAtras_; }
    Numero inicial(Detras detras) const { return iniciales_[static_cast<std::size_t>(detras)]; }
    Numero siguiente(Numero estado, char16_t unidad, Gasto& gasto) {
        const std::size_t columna = grupoDe(unidad);
        const Numero conocido = transiciones_[celda(estado, columna)];
        return conocido != desconocido ? conocido : calcula(estado, columna, gasto);
    }
    /// Whether a match is complete in a state, and where it ends.
    Completa completa(Numero estado) const { return completa_[estado]; }
    /// Units of one group are all the same to the pattern.
    std::size_t numGrupos() const { return muestras_.size(); }
    std::size_t grupoDe(char16_t unidad) const { return unidad < 256 ? bajas_[unidad] : grupoDeAlta(unidad); }

private:
    using Hilos = std::vector<std::uint32_t>;
    struct Estado {
        Hilos hilos;                       // instructions that go on from here, the preferred one first
        Detras detras = Detras::NoPalabra; // told apart only while an assertion waits
        bool completaAntes = false;

        bool operator<(const Estado& otro) const {
            return std::tie(hilos, detras, completaAntes) <
                   std::tie(otro.hilos, otro.detras, otro.completaAntes);
        }
    };
    enum class Delante : std::uint8_t { SinSaber, NoPalabra, Palabra, Fin };
    struct Entorno {
        Detras detras;
        Delante delante = Delante::SinSaber;
    };

    explicit Automata(const Programa& programa) : programa_(&programa) {}
    std::vector<std::uint32_t> tomasDistintas() const;
    bool reparteUnidades();
    std::uint8_t grupoDeAlta(char16_t unidad) const;
    bool toma(std::uint32_t instruccion, char16_t unidad) const;
    Detras detrasDeUnidad(char16_t unidad) const;

    /// Adds what can be reached from an instruction without taking anything; true if the match is then
    /// complete, and whatever comes later less preferred.
    bool sigue(std::uint32_t instruccion, Entorno entorno, Hilos& hilos);
    bool sigueTodos(const Hilos& desde, Entorno entorno, Hilos& hilos);
    bool espera(const Hilos& hilos) const;
    bool estaCompleto(const Hilos& hilos) const;
    Numero numeroInicial(Detras detras, Gasto& gasto);
    std::size_t celda(Numero estado, std::size_t grupo) const {
        return (std::size_t{estado} << anchura_) + grupo;
    }
    Numero inicialEn(std::u16string_view sujeto, std::size_t posicion) const {
        return iniciales_[miraAtras_ ? static_cast<std::size_t>(detrasDe(sujeto, posicion)) : 0];
    }
    std::size_t finEn(Numero estado, std::size_t i) const {
        return completa_[estado] == Completa::Antes ? i - 1 : i;
    }
    std::size_t saltaEnVano(std::u16string_view sujeto, std::size_t inicio, std::size_t desde,
                            std::size_t hasta, Numero estado, Gasto& gasto);
    Intento caminaLargo(std::u16string_view sujeto, std::size_t i, Numero estado, Intento intento,
                        Recuerdo& recuerdo, Gasto& gasto);
    Numero calcula(Numero estado, std::size_t grupo, Gasto& gasto);
    Numero numeroDe(Estado estado, Gasto& gasto);
    std::size_t bytesDe(const Estado& estado) const;

    const Programa* programa_;
    bool miraAtras_ = false;    // it has ^ or a boundary …
    bool conFronteras_ = false; // … of words
    std::array<std::uint8_t, 256> bajas_{};
    std::vector<char16_t> inicios_;    // first units of the intervals that no class cuts
    std::vector<std::uint8_t> grupos_; // of each interval
    std::vector<char16_t> muestras_;   // a unit of each group
    std::map<Estado, Numero> numeros_;
    std::vector<const Estado*> estados_;
    std::vector<Completa> completa_;          // of each state
    std::vector<std::uint8_t> aceptaAlFinal_; // of each state: the match is complete if the subject ends here
    std::vector<Numero> transiciones_;        // estado × grupo, rows of 2^anchura_
    std::size_t anchura_ = 0;
    std::vector<std::uint32_t> visitadas_;
    std::uint32_t visita_ = 0;
    std::vector<std::uint32_t> pendientes_;
    std::array<Numero, 3> iniciales_{};
};

} // namespace norvik::inline v0_2
