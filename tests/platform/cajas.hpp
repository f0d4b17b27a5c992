// SPDX-License-Identifier: MIT

// The boxes on which the suites run.
#pragma once

#include "norvik/platform/cajaTexto.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace norvik {

using Fabrica = std::unique_ptr<CajaTexto> (*)();

template <typename Caja>
std::unique_ptr<CajaTexto> crea() {
    return std::make_unique<Caja>();
}

} // namespace norvik
