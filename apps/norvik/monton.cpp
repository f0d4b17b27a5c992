// An order lives for milliseconds and touches a few megabytes once, so that most of its time would go into
// taking them from the system page by page. The heap is therefore grown once, by what orders need, from the
// start of a large page on, and asked for in large pages; elsewhere than on Linux and its C library it stays
// as it is.
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
    constexpr std::uintptr_t pagina = 4096;
    constexpr std::uintptr_t primerHueco = std::uintptr_t{256} << 10;
    mallopt(M_MMAP_THRESHOLD, tamanio);
    mallopt(M_TRIM_THRESHOLD, 4 * tamanio);
    mallopt(M_TOP_PAD, tamanio);
    // A page touched is small for good, and the heap writes behind each block that it hands out: the first
    // block ends just before a large page, which is then still untouched.
    const auto fin = reinterpret_cast<std::uintptr_t>(sbrk(0));
    sbrk(static_cast<std::intptr_t>(-(fin + primerHueco + pagina) % paginaGrande));
    auto* const inicio = static_cast<std::byte*>(sbrk(0));
    primero_.reserve(primerHueco);
    madvise(inicio + primerHueco + pagina, tamanio, MADV_HUGEPAGE);
#endif
}

} // namespace norvik::orden
