// SPDX-License-Identifier: MIT

#pragma once

#include <compare>
#include <cstdint>

namespace norvik::inline v0_2 {

/// Units from `desde` to `hasta`, both included.
struct RangoUnidades {
    char16_t desde = 0;
    char16_t hasta = 0;

    auto operator<=>(const RangoUnidades&) const = default; // NOLINT(modernize-use-nullptr): no pointers
};

/// Every `paso`-th unit from `desde` to `hasta`, and the one that stands for the first of them; those of the
/// others follow in the same steps.
struct TramoDeCaja {
    std::uint16_t desde = 0;
    std::uint16_t hasta = 0;
    std::uint16_t paso = 1;
    std::uint16_t imagen = 0;
};

} // namespace norvik::inline v0_2
