// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The names that are known somewhere, for those that nobody knows there.
class NombresConocidos {
public:
    explicit NombresConocidos(std::vector<std::u16string> nombres, std::stop_token parada = {});

    /// What `nombreCercano` says of the first names that it is asked for, of the others nothing: with many of
    /// both it would take for ever. Raises `OperacionCancelada`.
    std::u16string cercanoA(std::u16string_view nombre);

private:
    static constexpr std::size_t maximo = 100;

    std::vector<std::u16string> nombres_;
    std::stop_token parada_;
    std::size_t pedidos_ = 0;
};

/// The name that was most likely meant by one that nobody knows: the first of those that differ from it by
/// the fewest insertions, deletions, replacements and exchanges of neighbours, case apart. Empty when all
/// differ by more than a third of the name's length, or by more than 3.
std::u16string nombreCercano(std::u16string_view nombre, const std::vector<std::u16string>& conocidos);

} // namespace norvik::inline v0_2
