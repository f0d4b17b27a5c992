// SPDX-License-Identifier: MIT

// The tree and the colours of a long text are megabytes that are touched once, and where a page costs the
// system much, as in virtual machines, pages are most of the order's time. So the heap grows once, by what
// the longest text needs, and in large pages. Its new part begins with small ones: the heap writes behind the
// first block that it hands out there, and a page that has been touched stays as it is.
#include "memoria.hpp"

#include <cstdint>
#include <malloc.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace norvik::orden {

void pideMemoria([[maybe_unused]] std::size_t caracteres) {
#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)
    constexpr std::size_t textoLargo = 8192; // a shorter one would clear a large page in vain
    constexpr std::intptr_t paginaGrande = 2 << 20;
    constexpr std::intptr_t menudas = 1 << 20;
    constexpr int tamanio = 8 << 20;
    if (caracteres < textoLargo) return;
    mallopt(M_MMAP_THRESHOLD, tamanio);
    mallopt(M_TOP_PAD, tamanio);
    const auto fin = reinterpret_cast<std::intptr_t>(sbrk(0));
    sbrk(paginaGrande - (fin + menudas) % paginaGrande);
    auto* const inicio = static_cast<std::byte*>(sbrk(0));
    std::string().reserve(menudas / 2); // grows the heap
    madvise(inicio + menudas, tamanio, MADV_HUGEPAGE);
#endif
}

} // namespace norvik::orden
