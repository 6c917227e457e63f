#include "core/largePages.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

void* resizeBuffer(void* buffer, std::size_t oldSize, std::size_t newSize) noexcept
{
    if (oldSize < kLargeArea && newSize < kLargeArea)
        return std::realloc(buffer, newSize);
    void* const moved = newSize < kLargeArea ? std::malloc(newSize) : takeLargeArea(newSize);
    if (moved == nullptr)
        return nullptr;
    if (buffer != nullptr)
        std::memcpy(moved, buffer, std::min(oldSize, newSize));
    freeBuffer(buffer, oldSize);
    return moved;
}

void freeBuffer(void* buffer, std::size_t size) noexcept
{
    if (size < kLargeArea)
        std::free(buffer);
    else
        returnLargeArea(buffer, size);
}
