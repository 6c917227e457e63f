#include "core/largePages.h"

#include <cstdint>
#include <sys/mman.h>

namespace {

constexpr std::uintptr_t kPage = 2 * 1024 * 1024;

std::size_t wholePages(std::size_t size)
{
    return (size + kPage - 1) & ~(kPage - 1);
}

void* mapped(std::size_t size)
{
    void* begin = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return begin != MAP_FAILED ? begin : nullptr;
}

} // namespace

void adviseLargePages(void* begin, std::size_t size) noexcept
{
    if (size < kLargeArea)
        return;
    const auto first = (reinterpret_cast<std::uintptr_t>(begin) + kPage - 1) & ~(kPage - 1);
    const auto last = (reinterpret_cast<std::uintptr_t>(begin) + size) & ~(kPage - 1);
    if (first < last)
        madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
}

void* takeLargeArea(std::size_t size) noexcept
{
    if (size > SIZE_MAX - 2 * kPage)
        return nullptr;
    // One page more, so that a large page begins in it; the ends go back.
    const std::size_t whole = wholePages(size);
    char* const all = static_cast<char*>(mapped(whole + kPage));
    if (all == nullptr)
        return nullptr;
    const std::size_t front =
        wholePages(reinterpret_cast<std::uintptr_t>(all)) - reinterpret_cast<std::uintptr_t>(all);
    if (front > 0)
        munmap(all, front);
    munmap(all + front + whole, kPage - front);
    adviseLargePages(all + front, size);
    return all + front;
}

void returnLargeArea(void* begin, std::size_t size) noexcept
{
    munmap(begin, wholePages(size));
}
