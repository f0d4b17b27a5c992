#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

/// One match: 0-based first index in the subject and length, in characters.
struct Coincidencia {
    std::int32_t indice = 0;
    std::int32_t longitud = 0;

    bool operator==(const Coincidencia&) const = default;
};

/// Time that a whole operation (a recognition, a search) may spend in matchers.
class Presupuesto {
public:
    explicit Presupuesto(std::chrono::milliseconds plazo = std::chrono::milliseconds(3000))
        : fin_(std::chrono::steady_clock::now() + plazo) {}
    bool agotado() const { return std::chrono::steady_clock::now() > fin_; }

private:
    std::chrono::steady_clock::time_point fin_;
};

/// Raised by a search that exceeds the matcher's limits or its time; the caller knows the pattern's name.
class BusquedaDesbocada {};

class Automata;
class ClaseUnidades;

/// A compiled pattern of the editor's dialect. Searches are always global.
class Emparejador {
public:
    /// Nothing when the pattern is malformed.
    static std::optional<Emparejador> compila(std::u16string_view patron, bool ignoraMayusculas);

    Emparejador(Emparejador&&) noexcept;
    Emparejador& operator=(Emparejador&&) noexcept;
    Emparejador(const Emparejador&) = delete;
    Emparejador& operator=(const Emparejador&) = delete;
    ~Emparejador();

    /// Every non-overlapping match, left to right; after an empty match the search goes on one character
    /// further. The subject alone is seen. Raises `BusquedaDesbocada`.
    std::vector<Coincidencia> ejecuta(std::u16string_view sujeto, const Presupuesto& presupuesto) const;
    /// The same attempt by attempt. The pattern must be no plain word.
    class Busqueda;
    Busqueda empieza(std::u16string_view sujeto, const Presupuesto& presupuesto) const;

    /// The automaton that finds the matches, for searches that walk together: an attempt's time is then in
    /// proportion to the characters that it looks at. Null when another way does. Only to be used while a
    /// search is under way.
    Automata* automata() const;
    /// The units that a match can begin with; null when a match can be empty or its start is not known.
    const ClaseUnidades* primeras() const;
    /// The word that the pattern is, when it is a plain word: then its matches are its occurrences.
    const std::optional<std::u16string>& palabra() const;
    bool ignoraMayusculas() const;

private:
    struct Compilado;
    explicit Emparejador(std::unique_ptr<Compilado> compilado);
    std::unique_ptr<Compilado> compilado_;
};

/// A search under way, whose owner says where to try. Positions are 0-based, tried in ascending order. Other
/// searches with the same pattern wait for its end.
class Emparejador::Busqueda {
public:
    /// Before this position no match begins, but for those that were found.
    std::size_t libre() const { return libre_; }
    /// Length of the match that begins at a position from `libre()` on, if one does. Raises
    /// `BusquedaDesbocada`.
    std::optional<std::int32_t> intenta(std::size_t posicion);

private:
    friend class Emparejador;
    Busqueda(Compilado& compilado, std::u16string_view sujeto, const Presupuesto& presupuesto);

    Compilado* compilado_;
    std::unique_lock<std::mutex> cerrojo_;
    std::u16string_view sujeto_;
    const Presupuesto* presupuesto_;
    std::size_t libre_ = 0;
    std::uint32_t intentos_ = 0;
};

} // namespace norvik
