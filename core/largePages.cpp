#include "core/largePages.h"

#include <cstdint>

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

void adviseLargePages(void* begin, std::size_t size) noexcept
{
#ifdef MADV_HUGEPAGE
    constexpr std::uintptr_t kPage = 2 * 1024 * 1024;
    constexpr std::size_t kSmall = 4 * kPage;
    if (size < kSmall)
        return;
    const auto first = (reinterpret_cast<std::uintptr_t>(begin) + kPage - 1) & ~(kPage - 1);
    const auto last = (reinterpret_cast<std::uintptr_t>(begin) + size) & ~(kPage - 1);
    if (first < last)
        madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
#else
    static_cast<void>(begin);
    static_cast<void>(size);
#endif
}
