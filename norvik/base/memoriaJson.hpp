// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

namespace norvik::inline v0_2 {

/// Memory for RapidJSON, whose own allocator writes through null when there is none: this one raises.
struct MemoriaJson {
    static const bool kNeedFree = true;

    static void* Malloc(std::size_t bytes) { return bytes == 0 ? nullptr : ::operator new(bytes); }
    static void* Realloc(void* vieja, std::size_t antes, std::size_t ahora) {
        void* const nueva = Malloc(ahora);
        if (vieja != nullptr && nueva != nullptr) std::memcpy(nueva, vieja, std::min(antes, ahora));
        Free(vieja);
        return nueva;
    }
    static void Free(void* memoria) { ::operator delete(memoria); }
};

} // namespace norvik::inline v0_2
