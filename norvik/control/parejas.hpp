// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace norvik::inline v0_2 {

/// A bracket, and the one that belongs to it if there is one. Positions from 0.
struct Pareja {
    std::int32_t lugar = 0;
    std::optional<std::int32_t> otra;

    bool operator==(const Pareja&) const = default;
};

/// The pair of the bracket before a caret, or else of the one behind it; nothing where there is none.
/// Two brackets that cannot belong together (one of a comment and one outside, say) do not see each other.
/// The cost is at most one look at each character.
NORVIK_API std::optional<Pareja> parejaEn(std::u16string_view texto, std::int32_t cursor,
                                          const std::function<bool(std::int32_t, std::int32_t)>& juntos);

} // namespace norvik::inline v0_2
