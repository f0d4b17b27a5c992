// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/pattern/emparejador.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// What the find bar is asked for. The find dialog takes every text for a pattern; here it is one when it is
/// said to be.
struct BusquedaDirecta {
    std::u16string texto;
    bool coincidirMayusculas = false;
    bool palabrasCompletas = false;
    bool esExpresion = false;

    bool operator==(const BusquedaDirecta&) const = default;
};

/// Every match that has a character, in their order; nothing when the pattern is malformed. Raises
/// `BusquedaDesbocada`, and `OperacionCancelada` when it is asked to stop.
NORVIK_API std::optional<std::vector<Coincidencia>>
coincidenciasDe(const BusquedaDirecta& busqueda, std::u16string_view texto, const std::stop_token& parada);

/// One of the matches, and whether it was come to round the end of the text.
struct Hallada {
    std::size_t cual = 0;
    bool daLaVuelta = false;

    bool operator==(const Hallada&) const = default;
};

/// The first match at a position or behind it, else the first of all. There must be one.
NORVIK_API Hallada desde(const std::vector<Coincidencia>& halladas, std::int32_t posicion);
/// The last match before a position, else the last of all. There must be one.
NORVIK_API Hallada antesDe(const std::vector<Coincidencia>& halladas, std::int32_t posicion);

} // namespace norvik::inline v0_2
