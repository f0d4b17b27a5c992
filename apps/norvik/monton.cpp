// An order lives for milliseconds and touches a few megabytes once, so that most of its time would go into
// taking them from the system page by page. The heap is therefore grown once, by what orders need, and asked
// for in large pages, but for its first part: an order that needs no more would clear a large page in vain.
// Elsewhere than on Linux and its C library it stays as it is.
#include "monton.hpp"

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

namespace norvik::orden {

Monton::Monton() {
#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)
    constexpr int tamanio = 8 << 20;
    constexpr std::uintptr_t paginaGrande = 2 << 20;
    constexpr std::uintptr_t enPaginasMenudas = std::uintptr_t{1280} << 10;
    constexpr std::uintptr_t primerHueco = std::uintptr_t{256} << 10;
    mallopt(M_MMAP_THRESHOLD, tamanio);
    mallopt(M_TRIM_THRESHOLD, 4 * tamanio);
    mallopt(M_TOP_PAD, tamanio);
    // The heap writes behind each block that it hands out, and a page touched is small for good: what comes
    // before the first large page covers that too.
    const auto fin = reinterpret_cast<std::uintptr_t>(sbrk(0));
    sbrk(static_cast<std::intptr_t>(-(fin + primerHueco + enPaginasMenudas) % paginaGrande));
    auto* const inicio = static_cast<std::byte*>(sbrk(0));
    primero_.reserve(primerHueco);
    madvise(inicio + primerHueco + enPaginasMenudas, tamanio, MADV_HUGEPAGE);
#endif
}

} // namespace norvik::orden
