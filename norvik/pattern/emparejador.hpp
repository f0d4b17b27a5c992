// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

/// One match: 0-based first index in the subject and length, in characters.
struct Coincidencia {
    std::int32_t indice = 0;
    std::int32_t longitud = 0;

    bool operator==(const Coincidencia&) const = default;
};

/// A well-formed pattern of the editor's dialect: a value that never changes, so that threads may share it.
class Emparejador {
public:
    /// Nothing when the pattern is malformed.
    static std::optional<Emparejador> compila(std::u16string_view patron, bool ignoraMayusculas);

    /// Every non-overlapping match, left to right; after an empty match the search goes on one character
    /// further. The subject alone is seen. Raises what `Presupuesto::exige` does, `BusquedaDesbocada` also
    /// when memory or steps of one attempt run out, and `Desbordamiento` for a subject beyond 32 bits.
    std::vector<Coincidencia> ejecuta(std::u16string_view sujeto, const Presupuesto& presupuesto) const;

    /// Whether the pattern is a plain word; its matches are then the word's occurrences.
    bool esPalabra() const { return esPalabra_; }
    /// The word, or the pattern as it was written.
    const std::u16string& texto() const { return texto_; }
    bool ignoraMayusculas() const { return ignoraMayusculas_; }

private:
    Emparejador(std::u16string texto, bool esPalabra, bool ignoraMayusculas)
        : texto_(std::move(texto)), esPalabra_(esPalabra), ignoraMayusculas_(ignoraMayusculas) {}

    std::u16string texto_;
    bool esPalabra_;
    bool ignoraMayusculas_;
};

} // namespace norvik::inline v0_2
