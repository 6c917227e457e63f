#pragma once

#include "core/largePages.h"

#include <cstddef>
#include <limits>
#include <new>

namespace OvZel {

/// For arrays that can become large: their memory comes from the system in large pages and goes
/// back to it at once.
template <class T>
struct TLargeAllocator {
    using value_type = T;

    TLargeAllocator() = default;
    template <class U>
    TLargeAllocator(const TLargeAllocator<U>&) noexcept
    {
    }

    T* allocate(std::size_t nb)
    {
        if (nb > std::numeric_limits<std::size_t>::max() / sizeof(T))
            throw std::bad_alloc();
        const std::size_t size = nb * sizeof(T);
        void* area = size < kLargeArea ? ::operator new(size) : takeLargeArea(size);
        if (area == nullptr)
            throw std::bad_alloc();
        return static_cast<T*>(area);
    }
    void deallocate(T* area, std::size_t nb) noexcept
    {
        const std::size_t size = nb * sizeof(T);
        if (size < kLargeArea)
            ::operator delete(area);
        else
            returnLargeArea(area, size);
    }

    friend bool operator==(const TLargeAllocator&, const TLargeAllocator&) { return true; }
};

} // namespace OvZel
