// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/pattern/patron.hpp"

namespace norvik::inline v0_2 {

/// A pattern made ready for matching: its classes are sets of units and letter case is spelled out in them
/// (except for references); groups that only wrap are gone, alternatives of one unit are classes, small
/// counts are copies.
struct PatronListo {
    std::vector<Pieza> piezas;
    std::vector<ClaseUnidades> clases;
    std::uint32_t capturas = 0;
    bool tieneReferencias = false;
    bool ignoraMayusculas = false; ///< of references

    explicit PatronListo(const Patron& patron);

    /// The units that a match can begin with; nothing when a match can be empty or its start is not known.
    std::optional<ClaseUnidades> primeras() const;
};

} // namespace norvik::inline v0_2
