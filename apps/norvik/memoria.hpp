// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

namespace norvik::orden {

/// Before an order's work on a text of so many characters: what a long one needs is taken from the system at
/// once, in large pages, where there are such.
void pideMemoria(std::size_t caracteres);

} // namespace norvik::orden
