// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/parser/pelicula.hpp"

#include <stop_token>
#include <string_view>
#include <variant>

namespace norvik::inline v0_2 {

class Lenguaje;

/// The parse of a text as a film, up to its first error; or why there is none: no grammar, cancelled, a
/// pattern that runs away, a damaged table. Ranges count UTF-16 units. Raises `Desbordamiento` as `analiza`
/// does.
std::variant<Pelicula, Diagnostico> filma(const Lenguaje& lenguaje, std::u16string_view texto,
                                          const std::stop_token& cancelacion = {});

} // namespace norvik::inline v0_2
