// SPDX-License-Identifier: MIT
#include "KeptMemory.h"

#if defined(__GLIBC__)
#include <malloc.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdint>
#endif

namespace lumora
{

void keepFreedMemory()
{
#if defined(__GLIBC__)
    // Where the address space is limited, room that is taken ahead is missing elsewhere.
    rlimit limit{};
    if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur != RLIM_INFINITY)
        return;
    constexpr int room = 64 << 20;
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, room);
    mallopt(M_TOP_PAD, room);
    // A block that does not fit makes the heap grow by the whole size. Volatile, so that the compiler keeps the
    // allocation.
    const auto *before = static_cast<const std::uint8_t *>(sbrk(0));
    void *volatile piece = malloc(1 << 20);
    free(piece);
    const auto *after = static_cast<const std::uint8_t *>(sbrk(0));
    constexpr std::uintptr_t largePage = 2 << 20;
    const std::uintptr_t first = (reinterpret_cast<std::uintptr_t>(before) + largePage - 1) / largePage * largePage;
    const auto end = reinterpret_cast<std::uintptr_t>(after);
    if (end > first)
        madvise(reinterpret_cast<void *>(first), end - first, MADV_HUGEPAGE);
#endif
}

} // namespace lumora
