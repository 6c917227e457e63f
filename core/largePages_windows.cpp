#include "core/largePages.h"

#include <windows.h>

// Large pages there need a privilege that users lack.
void adviseLargePages(void*, std::size_t) noexcept {}

void* takeLargeArea(std::size_t size) noexcept
{
    return VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

void returnLargeArea(void* begin, std::size_t) noexcept
{
    VirtualFree(begin, 0, MEM_RELEASE);
}
