#pragma once

#include "norvik/base/rango.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvik {

enum class Gravedad : std::uint8_t { Error, Aviso, Nota };

/// What is wrong or odd. `nombreDe` gives the stable name of each, by which programs know it.
enum class Codigo : std::uint8_t {
    // Of a text.
    CaracterIncorrecto, ///< a character that starts no token: `hallado`
    TokenInesperado,    ///< `hallado` where only `esperados` may stand
    BusquedaDesbocada,  ///< `nombre`: the definition whose search needs too much time or memory
    Cancelado,          ///< the caller wanted no more of it
    Utf8Incorrecto,     ///< bytes that are no UTF-8
    SinGramatica,       ///< a text was to be parsed with a language that has no rules
    TablaIncorrecta,    ///< the table names no state or rule, never stops reducing, or gives no tree
    // Of a specification.
    CodigoMalEscrito,      ///< `nombre`: the definition with a misspelt \c(n)
    ReferenciaDesconocida, ///< `nombre` refers to `hallado`, which is not defined before it
    PatronIncorrecto,      ///< `nombre`: the definition, `hallado`: its text
    VariableIndefinida,    ///< `hallado` stands in a body of `nombre`, and no rule defines it
    TokenIndefinido,       ///< the same of a token
    SinReglas,             ///< nothing can be parsed
    Conflicto,             ///< `hallado`: both actions of a cell; `nombre`: state and symbol
    CapacidadSuperada,     ///< `hallado`: which limit was passed
    // Of a loading module.
    ModuloIncorrecto, ///< `hallado`: what is wrong with its line
};

/// Another place that has to do with a diagnostic, and what stands there.
struct Relacionado {
    Rango rango;
    std::u16string texto;

    bool operator==(const Relacionado&) const = default;
};

/// What the words of a diagnostic are made of; each code says which of them it fills. Texts are as a person
/// knows them: a token by its display name or between apostrophes.
struct Partes {
    std::u16string nombre;
    std::u16string hallado;
    std::vector<std::u16string> esperados;
    std::vector<Relacionado> relacionados;

    bool operator==(const Partes&) const = default;
};

/// One thing that is wrong or odd, as a value: `mensaje` makes its words.
struct Diagnostico {
    Codigo codigo = Codigo::TokenInesperado;
    Gravedad gravedad = Gravedad::Error;
    Rango rango;
    Partes partes;

    bool operator==(const Diagnostico&) const = default;
};

/// "token-inesperado": lower case and hyphens, never changed once it has been given out.
std::u16string_view nombreDe(Codigo codigo);
/// "error", "aviso" or "nota".
std::u16string_view nombreDe(Gravedad gravedad);
/// The words for a person, without place and code.
std::u16string mensaje(const Diagnostico& diagnostico);

/// Whether one of them is an error.
bool hayErrores(const std::vector<Diagnostico>& diagnosticos);

} // namespace norvik
