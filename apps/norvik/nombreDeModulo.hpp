#pragma once

#include "linea.hpp"

#include <string_view>

namespace norvik::orden {

/// True when a module of that kind can have the name: an identifier (letters of any alphabet, digits and
/// underscores, not starting with a digit), which in C++ is no keyword.
bool esNombreDeModulo(std::u16string_view nombre, LenguajeModulo lenguaje);

} // namespace norvik::orden
