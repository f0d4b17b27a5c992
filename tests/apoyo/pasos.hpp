// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>

namespace norvik {

/// How many random cases are tried: so many more by hand, NORVIK_PASOS=1000000.
inline int pasos(int cuantos) {
    const char* const pedidos = std::getenv("NORVIK_PASOS");  // NOLINT(concurrency-mt-unsafe): one thread
    return pedidos == nullptr ? cuantos : std::atoi(pedidos); // NOLINT(cert-err34-c)
}

} // namespace norvik
