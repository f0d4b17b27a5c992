// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/metodo.hpp"

#include <string_view>

namespace norvik {

/// What a specification asks for in lines of exactly the form «'% palabra: valor», before its first
/// definition; to whoever does not know them they are comments. Unknown words and values ask for nothing.
struct Directivas {
    Metodo metodo = Metodo::Clasico;
};

Directivas leeDirectivas(std::u16string_view especificacion);

} // namespace norvik
