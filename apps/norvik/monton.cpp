// An order lives for milliseconds and touches a few megabytes once, so that most of its time would go into
// taking them from the system page by page. The heap is therefore grown once, by what orders need, and asked
// for in large pages; elsewhere than on Linux and its C library it stays as it is.
#include "monton.hpp"

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace norvik::orden {

Monton::Monton() {
#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)
    constexpr int tamanio = 8 << 20;
    constexpr std::size_t primerHueco = std::size_t{256} << 10;
    mallopt(M_MMAP_THRESHOLD, tamanio);
    mallopt(M_TRIM_THRESHOLD, 4 * tamanio);
    mallopt(M_TOP_PAD, tamanio);
    primero_.reserve(primerHueco);
    auto* const fin = static_cast<std::byte*>(sbrk(0));
    madvise(fin - tamanio, tamanio, MADV_HUGEPAGE);
#endif
}

} // namespace norvik::orden
