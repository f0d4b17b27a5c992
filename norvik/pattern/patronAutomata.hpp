#pragma once

#include "norvik/pattern/patronPrograma.hpp"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace norvik {

/// What an attempt at one position came to. `Indeciso`: this way of matching cannot tell.
struct Intento {
    enum class Tipo : std::uint8_t { Coincide, Nada, Indeciso };
    Tipo tipo = Tipo::Nada;
    std::size_t fin = 0; ///< end of the match; without one, attempts before here are known to be in vain
};

/// A deterministic automaton of a pattern, built while it runs: one step a character.
class Automata {
public:
    /// Nothing when the program looks around, counts or refers back. The program outlives the automaton.
    static std::optional<Automata> de(const Programa& programa);

    /// What walks over one subject leave for the next ones: at a position, a state from which no match was
    /// completed.
    using Recuerdo = std::vector<std::uint16_t>;

    /// The match that starts at `inicio`; undecided once the automaton has grown too large. `recuerdo` is
    /// empty at the first attempt on a subject.
    Intento coincide(std::u16string_view sujeto, std::size_t inicio, Recuerdo& recuerdo);

private:
    friend class AutomataConjunto;

    using Numero = std::uint16_t;
    using Hilos = std::vector<std::uint32_t>;
    struct Estado {
        Hilos hilos; // instructions that go on from here, the preferred one first
        bool aceptaAlFinal = false;
    };
    static constexpr Numero muerto = 0;
    static constexpr Numero desconocido = 0xFFFF;

    explicit Automata(const Programa& programa) : programa_(&programa) {}
    bool reparteUnidades();
    Numero grupoDe(char16_t unidad) const { return unidad < 256 ? bajas_[unidad] : grupoDeAlta(unidad); }
    Numero grupoDeAlta(char16_t unidad) const;
    bool toma(std::uint32_t instruccion, char16_t unidad) const;

    /// Adds what can be reached from an instruction without taking anything; true if the match is then
    /// complete, and whatever comes later less preferred.
    bool sigue(std::uint32_t instruccion, Hilos& hilos, bool alFinal);
    bool aceptaAlFinal(const Hilos& hilos);
    Numero siguiente(Numero estado, char16_t unidad) {
        const std::size_t columna = grupoDe(unidad);
        const Numero conocido = transiciones_[celda(estado, columna)];
        return conocido != desconocido ? conocido : calcula(estado, columna);
    }
    std::size_t celda(Numero estado, std::size_t grupo) const {
        return (std::size_t{estado} << anchura_) + grupo;
    }
    std::size_t saltaEnVano(std::u16string_view sujeto, std::size_t inicio, std::size_t desde,
                            std::size_t hasta, Numero estado);
    Intento caminaLargo(std::u16string_view sujeto, std::size_t i, Numero estado, Intento intento,
                        Recuerdo& recuerdo);
    Numero calcula(Numero estado, std::size_t grupo);
    Numero numeroDe(Hilos hilos, bool acepta);

    const Programa* programa_;
    std::array<Numero, 256> bajas_{};
    std::vector<char16_t> inicios_;  // first units of the intervals that no class cuts
    std::vector<Numero> grupos_;     // of each interval
    std::vector<char16_t> muestras_; // a unit of each group
    std::vector<Estado> estados_;
    std::vector<std::uint8_t> acepta_; // of each state: the match is complete
    std::vector<Numero> transiciones_; // estado × grupo, rows of 2^anchura_
    std::size_t anchura_ = 0;
    std::map<Hilos, Numero> numeros_; // states by their threads; a complete match is the last of them
    std::vector<std::uint32_t> visitadas_;
    std::uint32_t visita_ = 0;
    std::vector<std::uint32_t> pendientes_;
    Numero inicial_ = muerto;
};

} // namespace norvik
