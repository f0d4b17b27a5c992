// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/motivoPatron.hpp"
#include "norvik/pattern/patronClase.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The form of a pattern inside the matcher: the list of its pieces in the order in which they are written.
// Groups are brackets that know each other, so that passes go along the list and none recurses, however deep
// groups nest.
namespace norvik::inline v0_2 {

enum class TipoPieza : std::uint8_t {
    Unidad,      ///< one given unit
    Clase,       ///< one unit of a class
    Inicio,      ///< ^
    Final,       ///< $
    Frontera,    ///< \b
    NoFrontera,  ///< \B
    Referencia,  ///< back reference
    Abre,        ///< start of a group
    Alternativa, ///< |
    Cierra,      ///< end of a group
};

enum class TipoGrupo : std::uint8_t { Captura, SinCaptura, Delante, DelanteNo };

struct Repeticion {
    static constexpr std::uint32_t sinLimite = 0xFFFFFFFF;

    std::uint32_t minimo = 1;
    std::uint32_t maximo = 1;
    bool perezosa = false;

    bool esUna() const { return minimo == 1 && maximo == 1; }
};

struct Pieza {
    TipoPieza tipo = TipoPieza::Unidad;
    TipoGrupo grupo = TipoGrupo::SinCaptura; ///< of `Abre` and its `Cierra`
    bool anulable = false;                   ///< of `Abre`: once through the group may take nothing
    char16_t unidad = 0;
    std::uint32_t numero = 0;    ///< index of the class; number of the capture (from 1), also of a reference
    std::uint32_t pareja = 0;    ///< `Abre` ↔ `Cierra`
    std::uint32_t siguiente = 0; ///< of `Abre` and `Alternativa`: the next `Alternativa`, or the `Cierra`
    Repeticion repeticion{};     ///< a group's stands at its `Abre`

    bool esDeUnaUnidad() const { return tipo == TipoPieza::Unidad || tipo == TipoPieza::Clase; }
    bool miraDelante() const { return grupo == TipoGrupo::Delante || grupo == TipoGrupo::DelanteNo; }
};

struct Patron {
    std::vector<Pieza> piezas; ///< the whole is a group without capture
    std::vector<ClaseLeida> clases;
    std::uint32_t capturas = 0;
    bool tieneReferencias = false;
    bool ignoraMayusculas = false;

    /// The word that the pattern is, when it is a sequence of one unit or more and nothing else.
    std::optional<std::u16string> palabra() const;
};

/// Reads a pattern; nothing when it is malformed.
std::optional<Patron> leePatron(std::u16string_view texto, bool ignoraMayusculas);

/// What makes a pattern malformed.
struct DefectoPatron {
    MotivoPatron motivo = MotivoPatron::NadaQueRepetir;
    std::size_t lugar = 0; ///< of the piece that is wrong, from 0
};

/// Nothing for a pattern that can be read.
std::optional<DefectoPatron> defectoDePatron(std::u16string_view texto);

/// Fills `pareja`, `siguiente` and `anulable` of a list whose groups are balanced.
void enlaza(std::vector<Pieza>& piezas);

} // namespace norvik::inline v0_2
