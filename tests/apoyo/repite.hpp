// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace norvik::apoyo {

/// A piece of text so many times.
template <typename Caracter>
std::basic_string<Caracter> repite(const Caracter* trozo, std::size_t veces) {
    std::basic_string<Caracter> texto;
    while (veces-- > 0) texto += trozo;
    return texto;
}

} // namespace norvik::apoyo
